#include "app/platform/QtSettingsStore.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace std::chrono_literals;

namespace {

const QByteArray signature = "zorvane-settings-1\n";

constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner;

/// The file is there before it is first replaced, so that what replaces it takes over its permissions.
QString prepared(const QString &path)
{
    const QFileInfo info(path);
    if (!info.dir().exists() && QDir().mkpath(info.path()))
        QFile::setPermissions(info.path(), ownerOnly | QFile::ExeOwner);
    QFile file(path);
    if (!file.exists())
        file.open(QIODevice::WriteOnly | QIODevice::NewOnly, ownerOnly);
    file.setPermissions(ownerOnly);
    // What a kill in the middle of a replacement left behind.
    QDir directory = info.dir();
    const QStringList remains =
        directory.entryList({info.fileName() + QStringLiteral(".??????")}, QDir::Files);
    for (const QString &name : remains)
        directory.remove(name);
    return path;
}

bool isUsable(const QFileInfo &file)
{
    return file.isWritable() && QFileInfo(file.path()).isWritable();
}

} // namespace

QtSettingsStore::QtSettingsStore(const QString &file) : path(prepared(file)), state(load())
{
    saveSoon.setSingleShot(true);
    saveSoon.setInterval(1s);
    saveSoon.callOnTimeout(&saveSoon, [this] { synchronize(); });
}

QtSettingsStore::~QtSettingsStore()
{
    synchronize();
}

SettingsProblem QtSettingsStore::load()
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return SettingsProblem::Unreadable;
    if (file.size() > 0) {
        if (file.read(signature.size()) != signature)
            return SettingsProblem::Garbled;
        QDataStream stream(&file);
        stream.setVersion(QDataStream::Qt_6_4);
        stream >> values;
        if (stream.status() != QDataStream::Ok || !stream.atEnd())
            return SettingsProblem::Garbled;
    }
    return isUsable(QFileInfo(file)) ? SettingsProblem::None : SettingsProblem::Unwritable;
}

void QtSettingsStore::setValue(const QString &key, const QVariant &value)
{
    const auto found = values.constFind(key);
    if (found != values.constEnd() && found->typeId() == value.typeId() && *found == value)
        return;
    values.insert(key, value);
    changed();
}

void QtSettingsStore::remove(const QString &key)
{
    if (values.remove(key) > 0)
        changed();
}

void QtSettingsStore::changed()
{
    unsaved = true;
    saveSoon.start();
}

void QtSettingsStore::synchronize()
{
    if (!unsaved || state == SettingsProblem::Garbled || state == SettingsProblem::Unreadable)
        return;
    QSaveFile file(path);
    bool written = file.open(QIODevice::WriteOnly) && file.write(signature) == signature.size();
    if (written) {
        QDataStream stream(&file);
        stream.setVersion(QDataStream::Qt_6_4);
        stream << values;
        written = stream.status() == QDataStream::Ok && file.commit();
    }
    state = written ? SettingsProblem::None : SettingsProblem::Unwritable;
    unsaved = !written;
    saveSoon.stop();
}
