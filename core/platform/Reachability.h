#pragma once

#include <functional>

enum class NetworkStatus { NotReachable, ReachableViaWiFi, ReachableViaWWAN };

/// Whether the service can be reached at all. Unknown counts as reachable; a service on this machine always
/// is. The one monitor is shared: the first `start` begins it, for the life of the process; `changed` then
/// runs on the main thread for each change and replaces an earlier one, an empty one only begins.
class Reachability {
public:
    virtual ~Reachability() = default;
    virtual void start(std::function<void(NetworkStatus)> changed) = 0;
    virtual NetworkStatus currentStatus() const = 0;
};
