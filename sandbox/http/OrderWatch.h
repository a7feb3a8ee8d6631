#pragma once

#include "exchange/Brokerage.h"

#include <functional>
#include <map>
#include <mutex>
#include <set>

namespace sandbox::http {

/// Notices fills, cancels and rejections of users' orders by looking at the books. All functions may be
/// called from any thread.
class OrderWatch {
public:
    explicit OrderWatch(Brokerage &brokerage) : m_brokerage(brokerage) {}

    /// Begins to watch the user; what happened so far is not reported.
    void begin(UserId user);

    /// Reports every order of these users that was filled, partly or whole, cancelled or rejected since the
    /// last look, in the order of their numbers. Users not named are watched no more.
    void look(const std::set<UserId> &users, const std::function<void(const Order &)> &report);

private:
    struct Seen {
        OrderStatus status = OrderStatus::Accepted;
        Shares filled = 0;
    };
    struct Watched {
        std::int64_t newest = 0;           ///< highest order number seen
        std::map<std::int64_t, Seen> open; ///< orders that can still change
    };
    void beginLocked(UserId user);
    void changed(UserId user, Watched &watched, const std::function<void(const Order &)> &report);
    void arrived(UserId user, Watched &watched, const std::function<void(const Order &)> &report);

    Brokerage &m_brokerage;
    std::mutex m_mutex;
    std::map<UserId, Watched> m_users;
};

} // namespace sandbox::http
