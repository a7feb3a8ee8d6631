#include "http/FaultForm.h"
#include "http/Local.h"
#include "http/Routes.h"
#include "http/Shapes.h"

namespace sandbox::http {
namespace {

constexpr int mostPages = 1000;

template <typename Read> Json allPages(Read read)
{
    Json list = Json::array();
    for (int page = 0; page < mostPages; ++page) {
        const Json rows = read(page);
        list.insert(list.end(), rows.begin(), rows.end());
        if (rows.size() < Brokerage::kPageSize)
            break;
    }
    return list;
}

Json books(Service &service, const identity::User &user)
{
    Brokerage &brokerage = service.brokerage;
    const AccountSummary account = brokerage.accountSummary(user.id);
    Json holdings = Json::array();
    for (const Holding &holding : brokerage.holdings(user.id))
        holdings.push_back(holdingJson(holding));
    const Json orders = allPages([&](int page) {
        Json rows = Json::array();
        for (const Order &order : brokerage.ordersToday(user.id, page))
            rows.push_back(entrustJson(order, brokerage.stocks()));
        return rows;
    });
    const Json deals = allPages([&](int page) {
        Json rows = Json::array();
        for (const Deal &deal : brokerage.dealsToday(user.id, page))
            rows.push_back(dealJson(deal, brokerage.stocks()));
        return rows;
    });
    return {{"id", std::to_string(user.id)},
            {"cell", user.cell},
            {"nick", user.nick},
            {"availableMoney", yuanText(account.available)},
            {"frozenMoney", yuanText(account.frozen)},
            {"stockValue", yuanText(account.stockValue)},
            {"totalAsset", yuanText(account.totalAsset)},
            {"unreadMessages", service.messages.unread(user.id)},
            {"holdings", std::move(holdings)},
            {"orders", orders},
            {"deals", deals}};
}

Json state(const Router &router, Service &service)
{
    const Router::Unknown unknown = router.unknown();
    const ClockState clock = service.clock.state();
    Json users = Json::array();
    for (const identity::User &user : service.users.all())
        users.push_back(books(service, user));
    Json faults = Json::array();
    for (const Fault &fault : service.faults.pending())
        faults.push_back({{"path", fault.path}, {"kind", faultName(fault.kind)}, {"count", fault.count}});
    return success(
        {{"unknown", {{"count", unknown.count}, {"latest", unknown.latest}}},
         {"clock", {{"now", std::to_string(service.brokerage.now())}, {"speedPercent", clock.speedPercent}}},
         {"tradingDay", std::to_string(service.brokerage.tradingDay())},
         {"pushStreams", service.push.streams()},
         {"faults", std::move(faults)},
         {"users", std::move(users)}});
}

} // namespace

void addSandboxRoutes(Router &router, Service &service)
{
    router.json("GET", "sandbox/state", [&router, &service](const Call &call) {
        requireLocal(call);
        return state(router, service);
    });
    router.json("POST", "sandbox/fault", [&service](const Call &call) {
        requireOwnPage(call);
        applyFaultForm(service.faults, call);
        return success();
    });
}

} // namespace sandbox::http
