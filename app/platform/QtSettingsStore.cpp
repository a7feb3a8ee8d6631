#include "app/platform/QtSettingsStore.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

const QByteArray signature = "zorvane-settings-1\n";

constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner;

bool readSettings(QIODevice &device, QSettings::SettingsMap &map)
{
    if (device.size() == 0)
        return true;
    if (device.read(signature.size()) != signature)
        return false;
    QDataStream stream(&device);
    stream.setVersion(QDataStream::Qt_6_4);
    stream >> map;
    return stream.status() == QDataStream::Ok && stream.atEnd();
}

bool writeSettings(QIODevice &device, const QSettings::SettingsMap &map)
{
    if (device.write(signature) != signature.size())
        return false;
    QDataStream stream(&device);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << map;
    return stream.status() == QDataStream::Ok;
}

QSettings::Format settingsFormat()
{
    static const QSettings::Format format =
        QSettings::registerFormat(QStringLiteral("settings"), readSettings, writeSettings);
    return format;
}

/// The file is there before the settings are first written, so that what replaces it takes over its
/// permissions.
QString prepared(const QString &path)
{
    const QFileInfo info(path);
    if (!info.dir().exists() && QDir().mkpath(info.path()))
        QFile::setPermissions(info.path(), ownerOnly | QFile::ExeOwner);
    QFile file(path);
    if (!file.exists())
        file.open(QIODevice::WriteOnly | QIODevice::NewOnly, ownerOnly);
    file.setPermissions(ownerOnly);
    return path;
}

} // namespace

QtSettingsStore::QtSettingsStore(const QString &path) : settings(prepared(path), settingsFormat()) {}

SettingsProblem QtSettingsStore::problem() const
{
    if (settings.status() == QSettings::FormatError)
        return SettingsProblem::Garbled;
    if (!QFileInfo(settings.fileName()).isReadable())
        return SettingsProblem::Unreadable;
    return settings.status() == QSettings::NoError && settings.isWritable() ? SettingsProblem::None
                                                                            : SettingsProblem::Unwritable;
}
