#include "app/platform/QtUrlOpener.h"

#include <QDesktopServices>
#include <QUrl>

void QtUrlOpener::open(const QString &url)
{
    const QUrl target(url);
    if (target.isValid() && !target.isRelative() && !target.isLocalFile())
        QDesktopServices::openUrl(target);
}
