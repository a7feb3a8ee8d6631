#pragma once

#include "core/platform/PushService.h"

/// Push where no vendor is set up: nothing ever arrives.
class QuietPushService : public PushService {
public:
    void start(const QString &, const QVariantMap &) override {}
    void setLogEnabled(bool) override {}
    void registerForTypes(int, const QList<PushCategory> &) override {}
    void registerDeviceToken(const QByteArray &) override {}
    void setAlias(const QString &, const QString &) override {}
    void didReceiveRemoteNotification(const QVariantMap &) override {}
    void onRemoteNotification(std::function<void(const QVariantMap &)>) override {}
};
