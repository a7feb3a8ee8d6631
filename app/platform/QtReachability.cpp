#include "app/platform/QtReachability.h"

#include "app/platform/Loopback.h"

#include <QNetworkInformation>

QtReachability::QtReachability(const QUrl &service) : isOnThisMachine(isLoopback(service)) {}

void QtReachability::start(std::function<void(NetworkStatus)> changed)
{
    if (changed)
        receive = std::move(changed);
    if (started)
        return;
    started = true;
    if (isOnThisMachine ||
        !QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability))
        return;
    reported = currentStatus();
    const QNetworkInformation *system = QNetworkInformation::instance();
    connect(system, &QNetworkInformation::reachabilityChanged, this, &QtReachability::report);
    connect(system, &QNetworkInformation::transportMediumChanged, this, &QtReachability::report);
}

NetworkStatus QtReachability::currentStatus() const
{
    const QNetworkInformation *system = isOnThisMachine ? nullptr : QNetworkInformation::instance();
    if (!system)
        return NetworkStatus::ReachableViaWiFi;
    if (system->reachability() == QNetworkInformation::Reachability::Disconnected)
        return NetworkStatus::NotReachable;
    return system->transportMedium() == QNetworkInformation::TransportMedium::Cellular
               ? NetworkStatus::ReachableViaWWAN
               : NetworkStatus::ReachableViaWiFi;
}

void QtReachability::report()
{
    const NetworkStatus now = currentStatus();
    if (now == std::exchange(reported, now) || !receive)
        return;
    receive(now);
}
