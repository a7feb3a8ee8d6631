#include "app/platform/MailFeedback.h"

#include "app/platform/MailDraft.h"
#include "core/platform/Pasteboard.h"
#include "core/platform/UrlOpener.h"
#include "core/util/Service.h"

MailFeedback::MailFeedback(Pasteboard &pasteboard, UrlOpener &urlOpener, QString mailAddress,
                           QString mailSubject)
    : board(pasteboard), opener(urlOpener), address(std::move(mailAddress)), subject(std::move(mailSubject))
{
}

void MailFeedback::show()
{
    if (opener.open(mailDraftUrl(address, subject, {})))
        return;
    board.setText(address);
    Service::showSuccessWithMsg(QStringLiteral("反馈邮箱已复制：%1").arg(address));
}
