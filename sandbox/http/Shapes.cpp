#include "http/Shapes.h"

namespace sandbox::http {
namespace {

std::string text(std::int64_t number)
{
    return std::to_string(number);
}

std::string flag(bool value)
{
    return value ? "1" : "0";
}

std::string stockName(const StockList &stocks, const std::string &code)
{
    const Stock *stock = stocks.find(code);
    return stock ? stock->name : std::string();
}

std::string market(const StockList &stocks, const std::string &code)
{
    const Stock *stock = stocks.find(code);
    return stock ? exchangeName(*stock) : std::string();
}

std::string side(Side value)
{
    return text(static_cast<int>(value));
}

std::string status(OrderStatus value)
{
    return text(static_cast<int>(value));
}

} // namespace

Json userJson(const identity::User &user, const std::string &token, bool wasRegistered)
{
    return {{"api_token", token}, {"has_register", flag(wasRegistered)},
            {"cell", user.cell},  {"name", user.realName},
            {"nick", user.nick},  {"inviteCode", user.inviteCode}};
}

Json messageJson(const messages::Message &message)
{
    return {{"id", text(message.id)},
            {"title", message.title},
            {"content", message.content},
            {"url", message.url},
            {"source", message.source},
            {"type", "1"},
            {"canReply", "0"},
            {"sendDate", text(message.sentAt)},
            {"read", flag(message.read)},
            {"shareImg", ""},
            {"shareTitle", message.title},
            {"shareUrl", message.url},
            {"shareDescription", message.summary},
            {"summary", message.summary}};
}

Json holdingJson(const Holding &holding)
{
    return {{"id", text(holding.id)},
            {"userId", text(holding.user)},
            {"stockCode", holding.stockCode},
            {"stockName", holding.stockName},
            {"shares", text(holding.shares)},
            {"availableShares", text(holding.availableShares)},
            {"costPerShare", holding.costPerShare},
            {"profitCostPerShare", holding.profitCostPerShare},
            {"currentPrice", yuanText(holding.currentPrice)},
            {"totalValue", yuanText(holding.totalValue)},
            {"accumulatedBuyCost", yuanText(holding.accumulatedBuyCost)},
            {"accumulatedBuyShares", text(holding.accumulatedBuyShares)},
            {"accumulatedSellIncome", yuanText(holding.accumulatedSellIncome)},
            {"accumulatedSellShares", text(holding.accumulatedSellShares)},
            {"profitMoney", yuanText(holding.profit)},
            {"profitRate", holding.profitRate},
            {"profitRatio", holding.profitRatio},
            {"accumulatedProfitMoney", yuanText(holding.accumulatedProfit)},
            {"closeTrading", flag(holding.closeTrading)},
            {"version", text(holding.version)},
            {"createdAt", text(holding.createdAt)},
            {"updatedAt", text(holding.updatedAt)}};
}

Json openEntrustJson(const Order &order, const StockList &stocks)
{
    return {{"id", text(order.id)},
            {"stockCode", order.stockCode},
            {"stockName", stockName(stocks, order.stockCode)},
            {"entrustNo", entrustNo(order.id)},
            {"entrustPrice", yuanText(order.price)},
            {"type", side(order.side)},
            {"status", status(order.status)},
            {"businessShares", text(order.filled)},
            {"entrustShares", text(order.shares)},
            {"isForced", "0"}};
}

Json entrustJson(const Order &order, const StockList &stocks)
{
    Json entrust = openEntrustJson(order, stocks);
    const bool asked = order.cancelRequestedAt != 0;
    entrust.update({{"userId", text(order.user)},
                    {"frozenMoney", yuanText(order.frozenCash)},
                    {"withdrawEntrustNos", asked ? entrustNo(order.id) : ""},
                    {"entrustTime", text(order.createdAt)},
                    {"businessPrice", ratioText(order.filledMoney, order.filled * 100, 2)},
                    {"exchangeType", market(stocks, order.stockCode)},
                    {"kidEntrustNo", ""},
                    {"rootEntrustNo", entrustNo(order.id)},
                    {"iinitDate", text(order.day)},
                    {"errorCode", order.status == OrderStatus::Rejected ? "1" : "0"},
                    {"errorMsg", order.note},
                    {"isTempWithdrawed", flag(asked)},
                    {"createdAt", text(order.createdAt)},
                    {"updatedAt", text(order.updatedAt)}});
    return entrust;
}

Json dealJson(const Deal &deal, const StockList &stocks)
{
    return {{"id", text(deal.id)},
            {"userId", text(deal.user)},
            {"entrutsId", text(deal.orderId)}, // kept on purpose: both spellings travel
            {"entrustId", text(deal.orderId)},
            {"stockCode", deal.stockCode},
            {"stockName", stockName(stocks, deal.stockCode)},
            {"entrustNo", entrustNo(deal.orderId)},
            {"entrustAmount", text(deal.orderShares)},
            {"entrustPrice", yuanText(deal.orderPrice)},
            {"type", side(deal.side)},
            {"entrustStatus", status(deal.orderStatus)},
            {"entrustDate", text(deal.day)},
            {"businessShares", text(deal.shares)},
            {"businessPrice", yuanText(deal.price)},
            {"businessMoney", yuanText(deal.money())},
            {"businessNo", text(deal.id)},
            {"dealDate", text(deal.day)},
            {"dealTime", text(deal.time)},
            {"stampTax", yuanText(deal.stampTax)},
            {"commission", yuanText(deal.commission)},
            {"transferFee", yuanText(deal.transferFee)},
            {"errorPathinfo", ""},
            {"exchangeType", market(stocks, deal.stockCode)},
            {"createdAt", text(deal.time)},
            {"updatedAt", text(deal.time)}};
}

Json levelsJson(const std::array<Level, kBookDepth> &levels)
{
    Json list = Json::array();
    for (const Level &level : levels)
        list.push_back({{"price", yuanText(level.price)}, {"volume", text(level.volume)}});
    return list;
}

Json quoteJson(const Quote &quote)
{
    return {{"stockCode", quote.code},
            {"stockName", quote.name},
            {"match", quote.last == 0 ? "" : yuanText(quote.last)},
            {"previousClose", yuanText(quote.previousClose)},
            {"upperLimit", yuanText(quote.upperLimit)},
            {"lowerLimit", yuanText(quote.lowerLimit)},
            {"suspended", flag(quote.suspended)},
            {"time", text(quote.time)},
            {"buyPankou", levelsJson(quote.bids)},
            {"sellPankou", levelsJson(quote.asks)}};
}

Json stockDetailJson(const StockDetail &detail)
{
    Json minutes = Json::array();
    for (const MinutePoint &minute : detail.minutes)
        minutes.push_back({{"time", text(minute.time)},
                           {"price", yuanText(minute.price)},
                           {"average", yuanText(minute.average)},
                           {"volume", text(minute.volume)}});
    Json candles = Json::array();
    for (const Candle &candle : detail.candles)
        candles.push_back({{"day", text(candle.day)},
                           {"open", yuanText(candle.open)},
                           {"high", yuanText(candle.high)},
                           {"low", yuanText(candle.low)},
                           {"close", yuanText(candle.close)},
                           {"volume", text(candle.volume)},
                           {"turnover", yuanText(candle.turnover)}});
    const Cents current = detail.quote.last == 0 ? detail.quote.previousClose : detail.quote.last;
    const Cents change = current - detail.quote.previousClose;
    Json data = quoteJson(detail.quote);
    data.update({{"currentPrice", yuanText(current)},
                 {"change", yuanText(change)},
                 {"changeRate", ratioText(change * 100, detail.quote.previousClose, 2)},
                 {"open", yuanText(detail.today.open)},
                 {"high", yuanText(detail.today.high)},
                 {"low", yuanText(detail.today.low)},
                 {"volume", text(detail.today.volume)},
                 {"turnover", yuanText(detail.today.turnover)},
                 {"minutes", std::move(minutes)},
                 {"candles", std::move(candles)}});
    return data;
}

} // namespace sandbox::http
