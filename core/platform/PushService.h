#pragma once

#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <functional>

/// What the device may do with a message: the kinds (alert 4, badge 1, sound 2, as one sum) and the actions
/// offered with it.
struct PushAction {
    QString identifier;
    QString title;
    bool opensClient = false;
    bool needsUnlock = false;
    bool destructive = false;
};

struct PushCategory {
    QString identifier;
    QList<PushAction> actions;
};

/// Messages pushed by the service to this device.
class PushService {
public:
    virtual ~PushService() = default;
    virtual void start(const QString &applicationKey, const QVariantMap &launchOptions) = 0;
    virtual void setLogEnabled(bool enabled) = 0;
    /// `types` is the sum of the kinds asked for; `categories` is empty on systems that have none.
    virtual void registerForTypes(int types, const QList<PushCategory> &categories) = 0;
    virtual void registerDeviceToken(const QByteArray &token) = 0;
    /// Messages for `alias` reach this device from now on, those for an earlier one no longer.
    virtual void setAlias(const QString &alias, const QString &type) = 0;
    /// Tells the vendor's kit that a message arrived; opening it is the shell's work.
    virtual void didReceiveRemoteNotification(const QVariantMap &payload) = 0;
    /// Where a message that arrives while the client runs goes, on the main thread.
    virtual void onRemoteNotification(std::function<void(const QVariantMap &payload)> receive) = 0;
};
