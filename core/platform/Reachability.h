#pragma once

#include <functional>

enum class NetworkStatus { NotReachable, ReachableViaWiFi, ReachableViaWWAN };

/// Whether the service can be reached at all. `changed` runs on the main thread after `start`, for each change.
/// Unknown counts as reachable; a service on this machine always is.
class Reachability {
public:
    virtual ~Reachability() = default;
    virtual void start(std::function<void(NetworkStatus)> changed) = 0;
    virtual NetworkStatus currentStatus() const = 0;
};
