#pragma once

#include "core/platform/SettingsStore.h"

#include <QFile>
#include <QTimer>
#include <QVariantMap>

/// Why a settings file cannot be used.
enum class SettingsProblem { None, InUse, Unreadable, Unwritable, Garbled };

/// The settings in a file of their own that only its owner may read. Types are kept as they were set. A
/// change reaches the disk with `synchronize`, a second later, or when the store goes; each time the file is
/// replaced as a whole. What cannot be written is tried again every second until it is. A file has one store
/// at a time, of all processes; a file with a problem is left alone.
class QtSettingsStore : public SettingsStore {
public:
    /// Makes the file's directory when it is missing, for its owner only.
    explicit QtSettingsStore(const QString &path);
    ~QtSettingsStore() override;

    SettingsProblem problem() const { return state; }

    QVariant value(const QString &key) const override { return values.value(key); }
    void setValue(const QString &key, const QVariant &value) override;
    void remove(const QString &key) override;
    QStringList allKeys() const override { return values.keys(); }
    void synchronize() override;

private:
    SettingsProblem load();
    bool takeLock();
    void changed();

    const QString path;
    QFile lock;
    QVariantMap values;
    SettingsProblem state;
    bool unsaved = false;
    QTimer saveSoon;
};
