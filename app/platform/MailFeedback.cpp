#include "app/platform/MailFeedback.h"

#include "app/platform/MailDraft.h"
#include "core/platform/UrlOpener.h"

MailFeedback::MailFeedback(UrlOpener &urlOpener, QString mailAddress, QString mailSubject)
    : opener(urlOpener), address(std::move(mailAddress)), subject(std::move(mailSubject))
{
}

void MailFeedback::show()
{
    opener.open(mailDraftUrl(address, subject, {}));
}
