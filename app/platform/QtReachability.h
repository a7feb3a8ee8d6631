#pragma once

#include "core/platform/Reachability.h"

#include <QObject>
#include <QUrl>

/// The system's view of the network. Where the service is on this machine the system is not asked.
class QtReachability : public QObject, public Reachability {
public:
    explicit QtReachability(const QUrl &service);

    void start(std::function<void(NetworkStatus)> changed) override;
    NetworkStatus currentStatus() const override;

private:
    void report();

    const bool isOnThisMachine;
    bool started = false;
    NetworkStatus reported = NetworkStatus::ReachableViaWiFi;
    std::function<void(NetworkStatus)> receive;
};
