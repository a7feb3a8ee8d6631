#include "app/platform/DesktopShare.h"

#include "app/platform/MailDraft.h"
#include "core/platform/Pasteboard.h"
#include "core/platform/UrlOpener.h"

DesktopShare::DesktopShare(Pasteboard &pasteboard, UrlOpener &urlOpener)
    : board(pasteboard), opener(urlOpener)
{
}

void DesktopShare::share(const ShareContent &content)
{
    QStringList lines{content.text, content.link};
    lines.removeAll(QString());
    const QString text = lines.join(u'\n');
    board.setText(text);
    opener.open(mailDraftUrl({}, content.title, text));
}
