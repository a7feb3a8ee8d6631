#include "app/platform/QtApplicationInfo.h"

#include "core/util/Text.h"

#include <QSysInfo>

QString QtApplicationInfo::buildVersion() const
{
    return QStringLiteral(ZORVANE_VERSION);
}

double QtApplicationInfo::systemVersion() const
{
    return doubleValue(QSysInfo::productVersion());
}
