#pragma once

#include "core/platform/SettingsStore.h"

#include <QSettings>

/// Why a settings file cannot be used.
enum class SettingsProblem { None, Unreadable, Unwritable, Garbled };

/// The settings in a file of their own that only its owner may read. Types are kept as they were set. Each
/// change of the file replaces it as a whole.
class QtSettingsStore : public SettingsStore {
public:
    /// Makes the file's directory when it is missing, for its owner only.
    explicit QtSettingsStore(const QString &path);

    /// Asked once after construction, and after `synchronize` where it matters that the disk has it.
    SettingsProblem problem() const;

    QVariant value(const QString &key) const override { return settings.value(key); }
    void setValue(const QString &key, const QVariant &value) override { settings.setValue(key, value); }
    void remove(const QString &key) override { settings.remove(key); }
    QStringList allKeys() const override { return settings.allKeys(); }
    void synchronize() override { settings.sync(); }

private:
    QSettings settings;
};
