#include "app/platform/QtUrlOpener.h"

#include <QDesktopServices>
#include <QUrl>

bool QtUrlOpener::open(const QString &url)
{
    const QUrl target(url);
    return target.isValid() && !target.isRelative() && !target.isLocalFile() &&
           QDesktopServices::openUrl(target);
}
