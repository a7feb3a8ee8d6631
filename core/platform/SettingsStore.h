#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

/// The key-value store of the application: text, booleans, lists and dictionaries by key. Absent keys read as
/// an invalid variant. What `synchronize` has returned from survives a kill, unless it cannot be written:
/// then it is kept in memory and written as soon as it can be. The stored file is whole at every moment.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    virtual QVariant value(const QString &key) const = 0;
    virtual void setValue(const QString &key, const QVariant &value) = 0;
    virtual void remove(const QString &key) = 0;
    virtual QStringList allKeys() const = 0;
    virtual void synchronize() = 0;
};
