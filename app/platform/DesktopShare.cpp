#include "app/platform/DesktopShare.h"

#include "app/platform/MailDraft.h"
#include "core/platform/Pasteboard.h"
#include "core/platform/UrlOpener.h"
#include "core/util/Service.h"

DesktopShare::DesktopShare(Pasteboard &pasteboard, UrlOpener &urlOpener)
    : board(pasteboard), opener(urlOpener)
{
}

void DesktopShare::share(const ShareContent &content)
{
    QStringList parts{content.text, content.title, content.link};
    parts.removeAll(QString());
    board.setText(parts.join(u' '));
    Service::showSuccessWithMsg(QStringLiteral("分享内容已复制"));
    parts.removeAll(content.title);
    opener.open(mailDraftUrl({}, content.title, parts.join(u'\n')));
}
