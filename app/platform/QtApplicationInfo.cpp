#include "app/platform/QtApplicationInfo.h"

#include "core/util/Text.h"

#include <QDir>
#include <QFile>
#include <QSysInfo>

namespace {

QString endingInSlash(const QString &url)
{
    return url.endsWith(u'/') ? url : url + u'/';
}

QString existing(const QString &directory)
{
    if (!QDir(directory).exists() && QDir().mkpath(directory))
        QFile::setPermissions(directory, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return directory;
}

} // namespace

QtApplicationInfo::QtApplicationInfo(const QString &baseUrl, const QString &dataDirectory)
    : base(endingInSlash(baseUrl)), directory(existing(dataDirectory))
{
}

QString QtApplicationInfo::buildVersion() const
{
    return QStringLiteral(ZORVANE_VERSION);
}

double QtApplicationInfo::systemVersion() const
{
    return doubleValue(QSysInfo::productVersion());
}
