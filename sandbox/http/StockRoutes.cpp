#include "http/Routes.h"
#include "http/Shapes.h"

namespace sandbox::http {
namespace {

/// The answer that carries the whole list: success is false on purpose, clients take the list from that
/// branch.
std::string listAnswer(const StockList &stocks)
{
    Json rows = Json::array();
    for (const Stock &stock : stocks.all())
        rows.push_back({{"c", stock.code}, {"n", stock.name}, {"s", stock.initials}});
    return failure("", stocks.version(), std::move(rows)).dump();
}

std::string stockCode(const Call &call)
{
    return call.need("stockCode", "股票代码");
}

Json timelyOrderForm(Service &service, const Call &call)
{
    const auto quote = service.brokerage.quote(stockCode(call));
    if (!quote)
        throw Refusal("股票代码不存在");
    return success(quoteJson(*quote));
}

Json stockDetailPage(Service &service, const Call &call)
{
    const auto detail = service.brokerage.stockDetail(stockCode(call));
    if (!detail)
        throw Refusal("股票代码不存在");
    return success(stockDetailJson(*detail));
}

} // namespace

void addStockRoutes(Router &router, Service &service)
{
    router.page("GET", "info", [&service, list = listAnswer(service.brokerage.stocks())](const Call &call) {
        if (call.infoVersion == service.brokerage.stocks().version())
            return Router::enveloped({{"success", true}, {"message", ""}});
        Answer answer;
        answer.body = list;
        return answer;
    });
    router.json("GET", "timelyInfo/timelyOrderForm",
                [&service](const Call &call) { return timelyOrderForm(service, call); });
    router.json("GET", "stockDetailPage",
                [&service](const Call &call) { return stockDetailPage(service, call); });
}

} // namespace sandbox::http
