#include "app/platform/QtSettingsStore.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>
#include <sys/file.h>

using namespace std::chrono_literals;

namespace {

const QByteArray signature = "zorvane-settings-1\n";

constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner;

void makeDirectoryOf(const QFileInfo &file)
{
    if (!file.dir().exists() && QDir().mkpath(file.path()))
        QFile::setPermissions(file.path(), ownerOnly | QFile::ExeOwner);
}

/// The file is there before it is first replaced, so that what replaces it takes over its permissions.
void prepare(const QString &path)
{
    const QFileInfo info(path);
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
}

bool isUsable(const QFileInfo &file)
{
    return file.isWritable() && QFileInfo(file.path()).isWritable();
}

} // namespace

QtSettingsStore::QtSettingsStore(const QString &file)
    : path(file), lock(file + QStringLiteral(".lock")), state(load())
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
    makeDirectoryOf(QFileInfo(path));
    if (!takeLock())
        return SettingsProblem::InUse;
    prepare(path);
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

/// A lock of the system goes with the process, however that ends. Where none can be made, nothing is known of
/// other stores.
bool QtSettingsStore::takeLock()
{
    return !lock.open(QIODevice::WriteOnly, ownerOnly) || ::flock(lock.handle(), LOCK_EX | LOCK_NB) == 0 ||
           errno != EWOULDBLOCK;
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
    const bool isOwn = state == SettingsProblem::None || state == SettingsProblem::Unwritable;
    if (!unsaved || !isOwn)
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
    if (written)
        saveSoon.stop();
    else
        saveSoon.start();
}
