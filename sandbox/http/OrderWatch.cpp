#include "http/OrderWatch.h"

#include <algorithm>

namespace sandbox::http {
namespace {

bool isNews(const Order &order)
{
    return order.filled > 0 || !isOpen(order.status);
}

/// The user's orders of today with a number above `after`, oldest first.
std::vector<Order> ordersAfter(Brokerage &brokerage, UserId user, std::int64_t after)
{
    std::vector<Order> result;
    for (int page = 0;; ++page) {
        const std::vector<Order> rows = brokerage.ordersToday(user, page);
        for (const Order &order : rows)
            if (order.id > after)
                result.push_back(order);
        if (rows.size() < Brokerage::kPageSize || rows.back().id <= after)
            break;
    }
    std::reverse(result.begin(), result.end());
    return result;
}

} // namespace

void OrderWatch::begin(UserId user)
{
    const std::scoped_lock lock(m_mutex);
    if (!m_users.contains(user))
        beginLocked(user);
}

void OrderWatch::beginLocked(UserId user)
{
    Watched watched;
    const std::vector<Order> latest = m_brokerage.ordersToday(user, 0);
    watched.newest = latest.empty() ? 0 : latest.front().id;
    for (const Order &order : m_brokerage.openOrders(user))
        watched.open[order.id] = {order.status, order.filled};
    m_users[user] = std::move(watched);
}

void OrderWatch::look(const std::set<UserId> &users, const std::function<void(const Order &)> &report)
{
    const std::scoped_lock lock(m_mutex);
    std::erase_if(m_users, [&users](const auto &entry) { return !users.contains(entry.first); });
    for (const UserId user : users) {
        const auto found = m_users.find(user);
        if (found == m_users.end()) {
            beginLocked(user);
            continue;
        }
        changed(user, found->second, report);
        arrived(user, found->second, report);
    }
}

void OrderWatch::changed(UserId user, Watched &watched, const std::function<void(const Order &)> &report)
{
    for (auto entry = watched.open.begin(); entry != watched.open.end();) {
        const auto order = m_brokerage.order(user, entry->first);
        Seen &seen = entry->second;
        if (order &&
            (order->filled != seen.filled || (order->status != seen.status && !isOpen(order->status))))
            report(*order);
        if (order)
            seen = {order->status, order->filled};
        entry = order && isOpen(order->status) ? std::next(entry) : watched.open.erase(entry);
    }
}

void OrderWatch::arrived(UserId user, Watched &watched, const std::function<void(const Order &)> &report)
{
    for (const Order &order : ordersAfter(m_brokerage, user, watched.newest)) {
        watched.newest = order.id;
        if (isNews(order))
            report(order);
        if (isOpen(order.status))
            watched.open[order.id] = {order.status, order.filled};
    }
}

} // namespace sandbox::http
