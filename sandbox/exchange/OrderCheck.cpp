#include "exchange/OrderCheck.h"

#include <algorithm>
#include <optional>

namespace sandbox {

namespace {

using Failure = std::optional<Refusal>;

Failure checkStock(const Stock *stock)
{
    if (!stock)
        return Refusal{Rule::UnknownStock, "证券代码不存在"};
    if (stock->suspended)
        return Refusal{Rule::Suspended, "该股票已停牌，不能交易"};
    return std::nullopt;
}

Failure checkSession(const Calendar &calendar, Millis now)
{
    if (calendar.phase(now) == Phase::Closed)
        return Refusal{Rule::Session, "当前为非交易时间，委托时间为交易日9:15至11:30、13:00至15:00"};
    return std::nullopt;
}

Failure checkQuantity(Shares shares, const LotRule &rule)
{
    if (shares > rule.maximum)
        return Refusal{Rule::Quantity, "单笔委托数量不得超过" + std::to_string(rule.maximum) + "股"};
    return std::nullopt;
}

bool fitsLots(Shares shares, const LotRule &rule)
{
    return shares >= rule.minimum && (shares - rule.minimum) % rule.step == 0;
}

std::string lotText(const LotRule &rule)
{
    const std::string minimum = std::to_string(rule.minimum);
    return rule.minimum == rule.step
               ? "委托数量须为" + minimum + "股的整数倍"
               : "单笔委托数量不得少于" + minimum + "股，以" + std::to_string(rule.step) + "股递增";
}

/** What remains below a lot is sold in one order: alone, or together with whole lots. */
Failure checkSellLots(Shares shares, Shares available, const LotRule &rule)
{
    if (fitsLots(shares, rule))
        return std::nullopt;
    const Shares odd = rule.step > 1 ? available % rule.step : available % rule.minimum;
    const bool sellsItWhole = rule.step > 1 ? shares % rule.step == odd : shares == available;
    if (odd != 0 && sellsItWhole)
        return std::nullopt;
    if (odd != 0 && rule.step > 1)
        return Refusal{Rule::OddRemainder, "不足" + std::to_string(rule.step) +
                                               "股的余额须一次性卖出，零股为" + std::to_string(odd) + "股"};
    return Refusal{Rule::Lot, lotText(rule)};
}

Failure checkPosition(const std::optional<Position> &position, Shares shares)
{
    const Shares available = position ? position->available() : 0;
    if (shares <= available)
        return std::nullopt;
    if (position && shares <= available + position->boughtToday)
        return Refusal{Rule::Position, "当日买入的股票下一交易日才能卖出（T+1），当前可卖" +
                                           std::to_string(available) + "股"};
    return Refusal{Rule::Position, "可卖股份不足，当前可卖" + std::to_string(available) + "股"};
}

Failure checkLimits(Cents price, const PriceLimits &limits)
{
    if (price >= limits.lower && price <= limits.upper)
        return std::nullopt;
    return Refusal{Rule::Limit, "委托价格超出涨跌停范围（" + yuanText(limits.lower) + "至" +
                                    yuanText(limits.upper) + "元）"};
}

Failure checkCash(Cents needed, Cents available)
{
    if (needed <= available)
        return std::nullopt;
    return Refusal{Rule::Cash, "可用资金不足，本次委托需冻结" + yuanText(needed) + "元（含费用），可用" +
                                   yuanText(available) + "元"};
}

/** Fees of a tiny sale can exceed what it brings; its first deal is of a lot or of the whole. */
Cents sellShortfall(Cents price, Shares shares, int date)
{
    const Cents firstDeal = price * std::min<Shares>(shares, 100);
    return std::max<Cents>(0, feesOf(true, firstDeal, date).total() - firstDeal);
}

} // namespace

Cents mostStillNeeded(Cents price, Shares remaining, Cents filledMoney, int date)
{
    if (remaining == 0)
        return 0;
    const Cents money = price * remaining;
    return money + feesOf(false, filledMoney + money, date).total() -
           feesOf(false, filledMoney, date).total();
}

Outcome<CheckedOrder> checkOrder(const OrderRequest &request, Market &market, Books &books, Millis now)
{
    const auto account = books.account(request.user);
    if (!account)
        return Refusal{Rule::Account, "交易账户不存在"};
    const Stock *stock = market.stocks().find(request.stockCode);
    if (auto failure = checkStock(stock))
        return *failure;
    if (auto failure = checkSession(market.calendar(), now))
        return *failure;

    const auto shares = parseShares(request.shares);
    if (!shares || *shares == 0)
        return Refusal{Rule::Quantity, "委托数量不正确"};
    const int date = market.calendar().dateOf(market.calendar().dayOf(now));
    const LotRule lots = lotRule(stock->board, date);
    if (auto failure = checkQuantity(*shares, lots))
        return *failure;
    const bool buy = request.side == Side::Buy;
    const auto position = buy ? std::nullopt : books.position(request.user, stock->code);
    if (buy && !fitsLots(*shares, lots))
        return Refusal{Rule::Lot, lotText(lots)};
    if (!buy)
        if (auto failure = checkSellLots(*shares, position ? position->available() : 0, lots))
            return *failure;

    const auto exactPrice = parseYuanTenThousandths(request.price);
    if (!exactPrice || *exactPrice == 0)
        return Refusal{Rule::Price, "委托价格不正确"};
    if (*exactPrice % 100 != 0)
        return Refusal{Rule::Tick, "委托价格须为0.01元的整数倍"};
    const Cents price = *exactPrice / 100;
    const PriceLimits limits = market.frame(*stock, now).limits;
    if (auto failure = checkLimits(price, limits))
        return *failure;

    CheckedOrder checked{request.user, stock, request.side, price, *shares, limits, 0};
    if (!buy)
        if (auto failure = checkPosition(position, *shares))
            return *failure;
    checked.frozenCash = buy ? mostStillNeeded(price, *shares, 0, date) : sellShortfall(price, *shares, date);
    if (auto failure = checkCash(checked.frozenCash, account->available))
        return *failure;
    return checked;
}

} // namespace sandbox
