#include "http/Routes.h"
#include "http/Shapes.h"

namespace sandbox::http {
namespace {

Json holdingsJson(Service &service, UserId user)
{
    Json list = Json::array();
    for (const Holding &holding : service.brokerage.holdings(user))
        list.push_back(holdingJson(holding));
    return list;
}

Json zorvanePage(Service &service, const identity::User &user, const Call &)
{
    const AccountSummary account = service.brokerage.accountSummary(user.id);
    return success({{"profit", yuanText(account.profit)},
                    {"availableMoney", yuanText(account.available)},
                    {"stockValue", yuanText(account.stockValue)},
                    {"frozenMoney", yuanText(account.frozen)},
                    {"renewApplyAheadDays", "0"},
                    {"totalBorrowMoney", "0.00"},
                    {"totalLoanCount", "0"},
                    {"totalMargin", "0.00"},
                    {"hasLoan", "0"},
                    {"stocks", holdingsJson(service, user.id)}});
}

Json buyPage(Service &service, const identity::User &user, const Call &)
{
    return success(yuanText(service.brokerage.usableMoney(user.id)));
}

Json holding(Service &service, const identity::User &user, const Call &)
{
    return success(holdingsJson(service, user.id));
}

Json callBackPage(Service &service, const identity::User &user, const Call &)
{
    Json list = Json::array();
    for (const Order &order : service.brokerage.openOrders(user.id))
        list.push_back(openEntrustJson(order, service.brokerage.stocks()));
    return success(std::move(list));
}

Json create(Service &service, const identity::User &user, const Call &call, Side side)
{
    OrderRequest request{user.id, side, call.need("stockCode", "股票代码"),
                         call.need("entrustPrice", "委托价格"), call.need("entrustShares", "委托数量")};
    requireTradePassword(service, call, user, "tradePassword");
    const Order order = accepted(service.brokerage.placeOrder(request));
    return success({{"id", std::to_string(order.id)}, {"entrustNo", entrustNo(order.id)}});
}

Json createBuy(Service &service, const identity::User &user, const Call &call)
{
    return create(service, user, call, Side::Buy);
}

Json createSell(Service &service, const identity::User &user, const Call &call)
{
    return create(service, user, call, Side::Sell);
}

Json queryEntrustNo(Service &service, const identity::User &user, const Call &call)
{
    const auto order = service.brokerage.order(user.id, call.identifier("id", "委托编号"));
    if (!order)
        throw Refusal("委托不存在");
    return success({{"id", std::to_string(order->id)}, {"entrustNo", entrustNo(order->id)}});
}

Json createCancel(Service &service, const identity::User &user, const Call &call)
{
    const Order order =
        accepted(service.brokerage.cancelOrder(user.id, call.need("tradeEntrustNo", "委托编号")));
    return success({{"id", std::to_string(order.id)}, {"entrustNo", entrustNo(order.id)}});
}

/// True once the cancel is over, also when the order was filled before it arrived: there is nothing more to
/// wait for.
Json queryWithDrawStatus(Service &service, const identity::User &user, const Call &call)
{
    const auto progress = service.brokerage.cancelProgress(user.id, call.identifier("id", "委托编号"));
    if (!progress)
        throw Refusal("委托不存在");
    if (*progress == CancelProgress::NotAsked)
        throw Refusal("该委托没有撤单申请");
    return success(*progress != CancelProgress::Pending);
}

int page(const Call &call)
{
    return call.number("page", 0, 0, 100'000);
}

Json entrustsToday(Service &service, const identity::User &user, const Call &call)
{
    Json list = Json::array();
    for (const Order &order : service.brokerage.ordersToday(user.id, page(call)))
        list.push_back(entrustJson(order, service.brokerage.stocks()));
    return success(std::move(list));
}

Json detailsToday(Service &service, const identity::User &user, const Call &call)
{
    Json list = Json::array();
    for (const Deal &deal : service.brokerage.dealsToday(user.id, page(call)))
        list.push_back(dealJson(deal, service.brokerage.stocks()));
    return success(std::move(list));
}

Json warnInfo(Service &service, const identity::User &user, const Call &)
{
    const AccountSummary account = service.brokerage.accountSummary(user.id);
    return success(
        {{"warnLine", yuanText(account.lines.warn)}, {"closeOutLine", yuanText(account.lines.closeOut)}});
}

} // namespace

void addTradingRoutes(Router &router, Service &service)
{
    const auto add = [&](const char *method, const std::string &path, UserHandler handler) {
        addUserRoute(router, service, method, path, std::move(handler));
    };
    add("GET", "zorvanePage", zorvanePage);
    add("GET", "buyPage", buyPage);
    add("GET", "holding", holding);
    add("GET", "callBackPage", callBackPage);
    add("GET", "entrustsToday", entrustsToday);
    add("GET", "detailsToday", detailsToday);
    add("GET", "warnInfo", warnInfo);
    add("POST", "entrust/createBuy", createBuy);
    add("POST", "entrust/createSell", createSell);
    add("POST", "entrust/createCancel", createCancel);
    add("POST", "entrust/queryEntrustNo", queryEntrustNo);
    add("POST", "entrust/queryWithDrawStatus", queryWithDrawStatus);
}

} // namespace sandbox::http
