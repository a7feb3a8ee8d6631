#include "exchange/Exchange.h"

#include <algorithm>

namespace sandbox {

namespace {

const char *const kExpired = "当日有效委托，收市时未成交部分已自动撤销";
const char *const kOutsideCage = "委托价格超出连续竞价有效申报价格范围，交易所废单";

Side opposite(Side side)
{
    return side == Side::Buy ? Side::Sell : Side::Buy;
}

/** True when a price is at least as good for the other party as the order demands. */
bool reaches(const Order &order, Cents price)
{
    return order.side == Side::Buy ? order.price >= price : order.price <= price;
}

bool comesFirst(const Order &left, const Order &right)
{
    if (left.stockCode != right.stockCode)
        return left.stockCode < right.stockCode;
    if (left.side != right.side)
        return left.side < right.side;
    if (left.price != right.price)
        return left.side == Side::Buy ? left.price > right.price : left.price < right.price;
    return left.id < right.id;
}

bool waitsForCancel(OrderStatus status)
{
    return status == OrderStatus::CancelRequested || status == OrderStatus::CancelRequestedPartlyFilled;
}

OrderStatus statusAfterFill(const Order &order)
{
    if (order.remaining() == 0)
        return OrderStatus::Filled;
    return waitsForCancel(order.status) ? OrderStatus::CancelRequestedPartlyFilled
                                        : OrderStatus::PartlyFilled;
}

Fees feesSoFar(const Order &order)
{
    return {order.commission, order.stampTax, order.transferFee};
}

/** Puts the order where its price belongs among the levels, which come best first. */
void addTo(std::array<Level, kBookDepth> &levels, const Order &order)
{
    const auto place = std::find_if(levels.begin(), levels.end(), [&](const Level &level) {
        const bool better = order.side == Side::Buy ? level.price > order.price : level.price < order.price;
        return level.price == 0 || !better;
    });
    if (place == levels.end())
        return;
    if (place->price != order.price) {
        std::move_backward(place, levels.end() - 1, levels.end());
        *place = {order.price, 0};
    }
    place->volume += order.remaining();
}

Shares wholeLots(Shares shares)
{
    return shares / 100 * 100;
}

} // namespace

void Exchange::advance(Millis from, Millis to)
{
    const Calendar &calendar = m_market.calendar();
    while (from < to) {
        const int day = calendar.dayOf(from);
        const Millis next = calendar.begin(day + 1);
        const Millis stop = std::min(to, next);
        workDay(day, from, stop);
        if (stop == next)
            m_books.record(stop, DayBegan{calendar.dateOf(day + 1)});
        from = stop;
    }
}

void Exchange::workDay(int day, Millis from, Millis to)
{
    const Calendar &calendar = m_market.calendar();
    Orders orders = m_books.openOrders();
    std::sort(orders.begin(), orders.end(), comesFirst);
    const Millis close = calendar.close(day);
    for (int moment = calendar.momentOf(day, from) + 1; !orders.empty() && moment < calendar.momentCount();
         ++moment) {
        const Millis time = calendar.timeOf(day, moment);
        if (time > to)
            break;
        finishCancels(orders, time);
        workMoment(orders, day, moment);
        std::erase_if(orders, [](const Order &order) { return !isOpen(order.status); });
    }
    finishCancels(orders, std::min(to, close));
    if (from < close && close <= to)
        expire(close);
}

void Exchange::workMoment(Orders &orders, int day, int moment)
{
    const Millis time = m_market.calendar().timeOf(day, moment);
    const bool auction = m_market.calendar().isAuction(moment);
    Shared shared;
    const Stock *stock = nullptr;
    Cents price = 0;
    for (Order &order : orders) {
        if (!isOpen(order.status) || order.createdAt >= time)
            continue;
        if (!stock || stock->code != order.stockCode) {
            stock = m_market.stocks().find(order.stockCode);
            price = m_market.spot(*stock, time).price;
        }
        if (auction)
            matchAuction(order, *stock, price, time, shared);
        else if (order.status == OrderStatus::Held)
            forward(order, orders, *stock, time);
        else if (reaches(order, price))
            matchResting(order, orders, *stock, price, time, shared);
    }
}

void Exchange::finishCancels(Orders &orders, Millis now)
{
    // In order of time, so that the log does not tell how often the market was brought up to now.
    std::map<std::pair<Millis, std::int64_t>, Order *> due;
    for (Order &order : orders)
        if (waitsForCancel(order.status) && cancelDue(order) <= now)
            due[{cancelDue(order), order.id}] = &order;
    for (const auto &[when, order] : due)
        close(*order, order->filled > 0 ? OrderStatus::PartlyCancelled : OrderStatus::Cancelled, "",
              when.first);
}

Millis Exchange::cancelDue(const Order &order) const
{
    // The exchange does not work while it has a break: what was asked for then is the first that it does when
    // it is back, before anything trades.
    const Calendar &calendar = m_market.calendar();
    const Millis asked = order.cancelRequestedAt;
    const Phase phase = calendar.phase(asked);
    const int day = calendar.dayOf(asked);
    if (phase == Phase::BeforeContinuous || phase == Phase::Lunch)
        return calendar.timeOf(day, calendar.momentOf(day, asked) + 1);
    return asked + kCancelDelay;
}

void Exchange::expire(Millis close)
{
    for (Order &order : m_books.openOrders())
        this->close(order, order.filled > 0 ? OrderStatus::PartlyCancelled : OrderStatus::Cancelled, kExpired,
                    close);
}

std::int64_t Exchange::take(const CheckedOrder &checked, Millis now)
{
    const Calendar &calendar = m_market.calendar();
    const Phase phase = calendar.phase(now);
    const bool held = phase == Phase::BeforeContinuous || phase == Phase::Lunch;
    const std::int64_t id = m_books.nextOrderId();
    m_books.record(now, OrderTaken{id, checked.user, checked.stock->code, static_cast<int>(checked.side),
                                   checked.price, checked.limits.lower, checked.limits.upper, checked.shares,
                                   checked.frozenCash,
                                   static_cast<int>(held ? OrderStatus::Held : OrderStatus::Accepted), 0,
                                   calendar.dateOf(calendar.dayOf(now))});
    if (phase == Phase::Continuous) {
        Orders orders = openOrders(checked.stock->code);
        const auto arrived =
            std::find_if(orders.begin(), orders.end(), [id](const Order &order) { return order.id == id; });
        matchArriving(*arrived, orders, *checked.stock, now);
    }
    return id;
}

void Exchange::askCancel(const Order &order, Millis now)
{
    const auto status =
        order.filled > 0 ? OrderStatus::CancelRequestedPartlyFilled : OrderStatus::CancelRequested;
    m_books.record(now, CancelAsked{order.id, static_cast<int>(status)});
}

void Exchange::reject(const Order &order, const std::string &reason, Millis now)
{
    Order rejected = order;
    close(rejected, OrderStatus::Rejected, reason, now);
}

void Exchange::rematch(const std::string &stockCode, Millis now)
{
    if (m_market.calendar().phase(now) != Phase::Continuous)
        return;
    const Stock &stock = *m_market.stocks().find(stockCode);
    Orders orders = openOrders(stockCode);
    for (Order &order : orders)
        if (isOpen(order.status))
            takeDepth(order, orders, stock, now, true);
}

Exchange::Orders Exchange::openOrders(const std::string &stockCode)
{
    Orders orders = m_books.openOrders(stockCode);
    std::erase_if(orders, [](const Order &order) { return order.status == OrderStatus::Held; });
    std::sort(orders.begin(), orders.end(), comesFirst);
    return orders;
}

void Exchange::matchArriving(Order &order, Orders &others, const Stock &stock, Millis now)
{
    if (voidOutsideCage(order, stock, now))
        return;
    takeDepth(order, others, stock, now, false);
    if (!isOpen(order.status))
        return;
    const Shares ahead = m_market.queueAt(stock, order.side, order.price, now, m_books.depthUsed(stock.code));
    if (ahead > 0)
        queue(order, ahead, order.status, now);
}

void Exchange::matchResting(Order &order, Orders &others, const Stock &stock, Cents price, Millis now,
                            Shared &shared)
{
    takeDepth(order, others, stock, now, true);
    if (!isOpen(order.status))
        return;
    if (price != order.price) {
        if (order.queueAhead > 0)
            queue(order, 0, order.status, now); // the price went past it: nobody stands before it any more
        return;
    }
    const Shares traded = m_market.volume(stock, now);
    const Shares behindQueue = traded - order.queueAhead;
    if (order.queueAhead > 0 && traded > 0)
        queue(order, std::max<Shares>(0, -behindQueue), order.status, now);
    if (behindQueue > 0) {
        const Shares open = std::min(behindQueue, m_market.openToUsers(stock, now));
        fill(order, order.price, shareOf(order, open, shared), {}, now);
    }
}

void Exchange::matchAuction(Order &order, const Stock &stock, Cents print, Millis now, Shared &shared)
{
    // Whoever is better than the one price is served in full; at the price itself there may not be enough.
    if (order.price == print)
        fill(order, print, shareOf(order, m_market.openToUsers(stock, now), shared), {}, now);
    else if (reaches(order, print))
        fill(order, print, order.remaining(), {}, now);
    if (!isOpen(order.status))
        return;
    const Shares ahead = m_market.queueAt(stock, order.side, order.price, now, m_books.depthUsed(stock.code));
    if (ahead != order.queueAhead)
        queue(order, ahead, order.status, now);
}

void Exchange::forward(Order &order, Orders &others, const Stock &stock, Millis now)
{
    queue(order, 0, OrderStatus::Accepted, now);
    matchArriving(order, others, stock, now);
}

void Exchange::takeDepth(Order &order, Orders &others, const Stock &stock, Millis now, bool atOwnPrice)
{
    for (const DisplayedLevel &level :
         m_market.displayed(stock, opposite(order.side), now, m_books.depthUsed(stock.code))) {
        if (!reaches(order, level.price))
            break;
        takeOrders(order, others, level.price, now);
        fill(order, atOwnPrice ? order.price : level.price, std::min(order.remaining(), level.volume), level,
             now);
    }
    takeOrders(order, others, order.side == Side::Buy ? order.price + 1 : order.price - 1, now);
}

void Exchange::takeOrders(Order &order, Orders &others, Cents before, Millis now)
{
    for (Order &other : others) {
        const bool better = order.side == Side::Buy ? other.price < before : other.price > before;
        if (other.stockCode == order.stockCode && other.side != order.side && better &&
            isOpen(other.status) && other.status != OrderStatus::Held && order.remaining() > 0)
            trade(order, other, now);
    }
}

void Exchange::trade(Order &order, Order &other, Millis now)
{
    const Order &earlier = other.id < order.id ? other : order;
    const Cents price = earlier.price;
    const Shares shares = std::min(order.remaining(), other.remaining());
    if (other.queueAhead > 0)
        queue(other, 0, other.status, now); // what stood before it has been taken
    fill(other, price, shares, {}, now);
    fill(order, price, shares, {}, now);
}

void Exchange::show(Quote &quote, Millis now)
{
    const Phase phase = m_market.calendar().phase(now);
    if (phase != Phase::Continuous && phase != Phase::Lunch)
        return;
    for (const Order &order : openOrders(quote.code))
        addTo(order.side == Side::Buy ? quote.bids : quote.asks, order);
}
bool Exchange::voidOutsideCage(Order &order, const Stock &stock, Millis now)
{
    if (!m_market.calendar().marketHours())
        return false;
    const UsedDepth used = m_books.depthUsed(stock.code);
    const auto best = [&](Side side, Cents otherwise) {
        const auto levels = m_market.displayed(stock, side, now, used);
        return levels.empty() ? otherwise : levels.front().price;
    };
    const Cents last = m_market.spot(stock, now).price;
    const Cents bid = best(Side::Buy, last);
    const Cents ask = best(Side::Sell, last);
    const PriceLimits cage = priceCage(ask, bid, order.day);
    const bool outside = order.side == Side::Buy ? order.price > cage.upper : order.price < cage.lower;
    if (outside)
        close(order, OrderStatus::Rejected, kOutsideCage, now);
    return outside;
}

Shares Exchange::shareOf(const Order &order, Shares open, Shared &shared) const
{
    Shares &taken = shared[{order.stockCode, order.side}];
    const Shares left = wholeLots(std::max<Shares>(0, open - taken));
    const Shares share = std::min(order.remaining(), left);
    taken += share;
    return share;
}

void Exchange::queue(Order &order, Shares ahead, OrderStatus status, Millis now)
{
    order.queueAhead = ahead;
    order.status = status;
    m_books.record(now, OrderQueued{order.id, static_cast<int>(status), ahead});
}

void Exchange::fill(Order &order, Cents price, Shares shares, const DisplayedLevel &level, Millis now)
{
    if (shares == 0)
        return;
    const bool sell = order.side == Side::Sell;
    const Cents money = price * shares;
    const Fees fees = feesOf(sell, order.filledMoney + money, order.day) - feesSoFar(order);

    OrderFilled event;
    if (sell) {
        const Position position = m_books.position(order.user, order.stockCode).value();
        event.frozenDelta = -order.frozenCash;
        event.availableDelta = money - fees.total() + order.frozenCash;
        event.costDelta = -((position.cost * shares + position.shares / 2) / position.shares);
    } else {
        const Cents paid = money + fees.total();
        const Cents stillFrozen =
            mostStillNeeded(order.price, order.remaining() - shares, order.filledMoney + money, order.day);
        event.frozenDelta = stillFrozen - order.frozenCash;
        event.availableDelta = -event.frozenDelta - paid;
        event.costDelta = paid;
    }
    order.filled += shares;
    order.filledMoney += money;
    order.frozenCash += event.frozenDelta;
    order.commission += fees.commission;
    order.stampTax += fees.stampTax;
    order.transferFee += fees.transferFee;
    order.status = statusAfterFill(order);

    event.deal = m_books.nextDealId();
    event.order = order.id;
    event.user = order.user;
    event.stock = order.stockCode;
    event.side = static_cast<int>(order.side);
    event.price = price;
    event.shares = shares;
    event.commission = fees.commission;
    event.stampTax = fees.stampTax;
    event.transferFee = fees.transferFee;
    event.status = static_cast<int>(order.status);
    event.day = order.day;
    event.depthPrice = level.price;
    event.depthEpoch = level.epoch;
    m_books.record(now, event);
}

void Exchange::close(Order &order, OrderStatus status, const std::string &note, Millis now)
{
    m_books.record(now,
                   OrderClosed{order.id, order.user, order.stockCode, static_cast<int>(status),
                               order.frozenCash, order.side == Side::Sell ? order.remaining() : 0, note});
    order.status = status;
    order.frozenCash = 0;
}

} // namespace sandbox
