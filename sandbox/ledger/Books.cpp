#include "ledger/Books.h"

#include "store/Schema.h"

namespace sandbox {

namespace {

constexpr const char *kOrderColumns =
    "SELECT id, user_id, stock, side, price, shares, filled, filled_money, frozen_cash, commission, "
    "stamp_tax, "
    "transfer_fee, status, queue_ahead, day, created_at, updated_at, cancel_at, note FROM entrust ";

constexpr const char *kPositionColumns = "SELECT id, user_id, stock, shares, bought_today, frozen, cost, "
                                         "buy_cost, buy_shares, sell_income, sell_shares, "
                                         "version, created_at, updated_at FROM position ";

Order orderFrom(const Statement &row)
{
    Order order;
    order.id = row.integer(0);
    order.user = row.integer(1);
    order.stockCode = row.text(2);
    order.side = static_cast<Side>(row.integer(3));
    order.price = row.integer(4);
    order.shares = row.integer(5);
    order.filled = row.integer(6);
    order.filledMoney = row.integer(7);
    order.frozenCash = row.integer(8);
    order.commission = row.integer(9);
    order.stampTax = row.integer(10);
    order.transferFee = row.integer(11);
    order.status = static_cast<OrderStatus>(row.integer(12));
    order.queueAhead = row.integer(13);
    order.day = static_cast<int>(row.integer(14));
    order.createdAt = row.integer(15);
    order.updatedAt = row.integer(16);
    order.cancelRequestedAt = row.integer(17);
    order.note = row.text(18);
    return order;
}

Position positionFrom(const Statement &row)
{
    Position position;
    position.id = row.integer(0);
    position.user = row.integer(1);
    position.stock = row.text(2);
    position.shares = row.integer(3);
    position.boughtToday = row.integer(4);
    position.frozen = row.integer(5);
    position.cost = row.integer(6);
    position.buyCost = row.integer(7);
    position.buyShares = row.integer(8);
    position.sellIncome = row.integer(9);
    position.sellShares = row.integer(10);
    position.version = row.integer(11);
    position.createdAt = row.integer(12);
    position.updatedAt = row.integer(13);
    return position;
}

bool isBuy(int side)
{
    return static_cast<Side>(side) == Side::Buy;
}

} // namespace

Books::Books(Database &database) : m_database(database)
{
    m_database.execute(schemaSql());
}

void Books::record(Millis time, const Event &event)
{
    Statement(m_database, "INSERT INTO event (time, kind, payload) VALUES (?, ?, ?)")
        .bind(time, eventKind(event), eventPayload(event))
        .run();
    std::visit([&](const auto &happened) { apply(time, happened); }, event);
}

void Books::apply(Millis time, const AccountOpened &event)
{
    Statement(m_database, "INSERT INTO account VALUES (?, 0, 0, 0, ?)").bind(event.user, time).run();
}

void Books::apply(Millis, const CashMoved &event)
{
    moveCash(event.user, event.amount, 0);
}

void Books::apply(Millis time, const SharesGranted &event)
{
    addShares(time, event.user, event.stock, event.shares, 0, event.cost);
}

void Books::apply(Millis time, const OrderTaken &event)
{
    Statement(
        m_database,
        "INSERT INTO entrust VALUES (?, ?, ?, ?, ?, ?, ?, ?, 0, 0, ?, 0, 0, 0, ?, 1, ?, ?, ?, ?, 0, '')")
        .bind(event.order, event.user, event.stock, event.side, event.price, event.lowerLimit,
              event.upperLimit, event.shares, event.frozenCash, event.status, event.queueAhead, event.day,
              time, time)
        .run();
    moveCash(event.user, -event.frozenCash, event.frozenCash);
    if (!isBuy(event.side))
        Statement(m_database,
                  "UPDATE position SET frozen = frozen + ? WHERE user_id = ? AND stock = ? AND shares > 0")
            .bind(event.shares, event.user, event.stock)
            .run();
}

void Books::apply(Millis, const OrderQueued &event)
{
    Statement(m_database, "UPDATE entrust SET status = ?, queue_ahead = ? WHERE id = ?")
        .bind(event.status, event.queueAhead, event.order)
        .run();
}

void Books::apply(Millis time, const OrderFilled &event)
{
    const Cents money = event.price * event.shares;
    Statement(m_database, "INSERT INTO deal VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)")
        .bind(event.deal, event.order, event.user, event.stock, event.side, event.price, event.shares,
              event.commission, event.stampTax, event.transferFee, event.day, time)
        .run();
    Statement(m_database,
              "UPDATE entrust SET filled = filled + ?, filled_money = filled_money + ?, "
              "frozen_cash = frozen_cash + ?, commission = commission + ?, stamp_tax = stamp_tax + ?, "
              "transfer_fee = transfer_fee + ?, status = ?, open = ?, updated_at = ? WHERE id = ?")
        .bind(event.shares, money, event.frozenDelta, event.commission, event.stampTax, event.transferFee,
              event.status, isOpen(static_cast<OrderStatus>(event.status)), time, event.order)
        .run();
    moveCash(event.user, event.availableDelta, event.frozenDelta);
    if (isBuy(event.side)) {
        addShares(time, event.user, event.stock, event.shares, event.shares, event.costDelta);
    } else {
        removeShares(time, event);
        Statement(m_database, "UPDATE account SET unsettled = unsettled + ? WHERE user_id = ?")
            .bind(event.availableDelta + event.frozenDelta, event.user)
            .run();
    }
    if (event.depthEpoch != 0)
        Statement(m_database, "INSERT INTO depth_used VALUES (?, ?, ?, ?, ?) "
                              "ON CONFLICT DO UPDATE SET shares = shares + excluded.shares")
            .bind(event.stock, isBuy(event.side) ? 2 : 1, event.depthPrice, event.depthEpoch, event.shares)
            .run();
}

void Books::apply(Millis time, const CancelAsked &event)
{
    Statement(m_database, "UPDATE entrust SET status = ?, cancel_at = ?, updated_at = ? WHERE id = ?")
        .bind(event.status, time, time, event.order)
        .run();
}

void Books::apply(Millis time, const OrderClosed &event)
{
    Statement(
        m_database,
        "UPDATE entrust SET status = ?, open = 0, frozen_cash = 0, note = ?, updated_at = ? WHERE id = ?")
        .bind(event.status, event.note, time, event.order)
        .run();
    moveCash(event.user, event.releasedCash, -event.releasedCash);
    Statement(m_database,
              "UPDATE position SET frozen = frozen - ? WHERE user_id = ? AND stock = ? AND shares > 0")
        .bind(event.releasedShares, event.user, event.stock)
        .run();
}

void Books::apply(Millis, const DayBegan &event)
{
    m_database.execute("UPDATE position SET bought_today = 0 WHERE bought_today > 0;"
                       "UPDATE account SET unsettled = 0;"
                       "DELETE FROM depth_used;");
    setSetting("day", event.day);
}

void Books::apply(Millis, const PriceMoved &event)
{
    Statement(m_database, "INSERT INTO price_move (stock, day, moment, kind, shift) VALUES (?, ?, ?, ?, ?)")
        .bind(event.stock, event.day, event.moment, event.kind, event.shift)
        .run();
}

void Books::apply(Millis, const ClockSet &event)
{
    setSetting("clock real", event.real);
    setSetting("clock simulated", event.simulated);
    setSetting("clock speed percent", event.speedPercent);
}

void Books::moveCash(UserId user, Cents available, Cents frozen)
{
    Statement(m_database,
              "UPDATE account SET available = available + ?, frozen = frozen + ? WHERE user_id = ?")
        .bind(available, frozen, user)
        .run();
}

void Books::addShares(Millis time, UserId user, const std::string &stock, Shares shares, Shares boughtToday,
                      Cents cost)
{
    Statement(
        m_database,
        "INSERT INTO position (user_id, stock, shares, bought_today, frozen, cost, buy_cost, buy_shares, "
        "sell_income, sell_shares, version, created_at, updated_at) "
        "VALUES (?1, ?2, ?3, ?4, 0, ?5, ?5, ?3, 0, 0, 1, ?6, ?6) "
        "ON CONFLICT (user_id, stock) WHERE shares > 0 DO UPDATE SET shares = shares + ?3, "
        "bought_today = bought_today + ?4, cost = cost + ?5, buy_cost = buy_cost + ?5, "
        "buy_shares = buy_shares + ?3, version = version + 1, updated_at = ?6")
        .bind(user, stock, shares, boughtToday, cost, time)
        .run();
}

void Books::removeShares(Millis time, const OrderFilled &event)
{
    const Cents income = event.price * event.shares - event.commission - event.stampTax - event.transferFee;
    Statement(m_database,
              "UPDATE position SET shares = shares - ?1, frozen = frozen - ?1, cost = cost + ?2, "
              "sell_income = sell_income + ?3, sell_shares = sell_shares + ?1, version = version + 1, "
              "updated_at = ?4 WHERE user_id = ?5 AND stock = ?6 AND shares > 0")
        .bind(event.shares, event.costDelta, income, time, event.user, event.stock)
        .run();
}

std::optional<Account> Books::account(UserId user)
{
    Statement query(m_database,
                    "SELECT available, frozen, unsettled, created_at FROM account WHERE user_id = ?");
    query.bind(user);
    if (!query.step())
        return std::nullopt;
    return Account{user, query.integer(0), query.integer(1), query.integer(2), query.integer(3)};
}

std::vector<Position> Books::positions(UserId user)
{
    Statement query(m_database,
                    std::string(kPositionColumns) + "WHERE user_id = ? AND shares > 0 ORDER BY stock");
    query.bind(user);
    std::vector<Position> found;
    while (query.step())
        found.push_back(positionFrom(query));
    return found;
}

std::optional<Position> Books::position(UserId user, const std::string &stock)
{
    Statement query(m_database,
                    std::string(kPositionColumns) + "WHERE user_id = ? AND stock = ? AND shares > 0");
    query.bind(user, stock);
    if (!query.step())
        return std::nullopt;
    return positionFrom(query);
}

std::optional<Order> Books::order(std::int64_t id)
{
    Statement query(m_database, std::string(kOrderColumns) + "WHERE id = ?");
    query.bind(id);
    if (!query.step())
        return std::nullopt;
    return orderFrom(query);
}

std::vector<Order> Books::openOrders()
{
    Statement query(m_database, std::string(kOrderColumns) + "WHERE open = 1 ORDER BY id");
    return orders(query);
}

std::vector<Order> Books::openOrders(UserId user)
{
    Statement query(m_database, std::string(kOrderColumns) + "WHERE open = 1 AND user_id = ? ORDER BY id");
    query.bind(user);
    return orders(query);
}

std::vector<Order> Books::openOrders(const std::string &stock)
{
    Statement query(m_database, std::string(kOrderColumns) + "WHERE open = 1 AND stock = ? ORDER BY id");
    query.bind(stock);
    return orders(query);
}

std::vector<Order> Books::ordersOf(UserId user, int day, int limit, int offset)
{
    Statement query(m_database, std::string(kOrderColumns) +
                                    "WHERE user_id = ? AND day = ? ORDER BY id DESC LIMIT ? OFFSET ?");
    query.bind(user, day, limit, offset);
    return orders(query);
}

std::vector<Deal> Books::dealsOf(UserId user, int day, int limit, int offset)
{
    Statement query(
        m_database,
        "SELECT deal.id, entrust_id, deal.user_id, deal.stock, deal.side, entrust.price, entrust.shares, "
        "entrust.status, deal.price, deal.shares, deal.commission, deal.stamp_tax, deal.transfer_fee, "
        "deal.day, deal.time FROM deal JOIN entrust ON entrust.id = entrust_id "
        "WHERE deal.user_id = ? AND deal.day = ? ORDER BY deal.id DESC LIMIT ? OFFSET ?");
    query.bind(user, day, limit, offset);
    std::vector<Deal> deals;
    while (query.step())
        deals.push_back({query.integer(0), query.integer(1), query.integer(2), query.text(3),
                         static_cast<Side>(query.integer(4)), query.integer(5), query.integer(6),
                         static_cast<OrderStatus>(query.integer(7)), query.integer(8), query.integer(9),
                         query.integer(10), query.integer(11), query.integer(12),
                         static_cast<int>(query.integer(13)), query.integer(14)});
    return deals;
}

std::int64_t Books::nextOrderId()
{
    return largestId("entrust") + 1;
}

std::int64_t Books::nextDealId()
{
    return largestId("deal") + 1;
}

UsedDepth Books::depthUsed(const std::string &stock)
{
    Statement query(m_database, "SELECT side, price, epoch, shares FROM depth_used WHERE stock = ?");
    query.bind(stock);
    UsedDepth used;
    while (query.step())
        used[{static_cast<Side>(query.integer(0)), query.integer(1), query.integer(2)}] = query.integer(3);
    return used;
}

std::vector<PriceMove> Books::priceMoves()
{
    Statement query(m_database, "SELECT stock, day, moment, kind, shift FROM price_move ORDER BY id");
    std::vector<PriceMove> moves;
    while (query.step())
        moves.push_back({query.text(0), static_cast<int>(query.integer(1)),
                         static_cast<int>(query.integer(2)), static_cast<PriceMove::Kind>(query.integer(3)),
                         query.integer(4)});
    return moves;
}

int Books::lastDay()
{
    return static_cast<int>(setting("day").value_or(0));
}

std::optional<std::int64_t> Books::setting(const std::string &key)
{
    Statement query(m_database, "SELECT value FROM setting WHERE key = ?");
    query.bind(key);
    if (!query.step())
        return std::nullopt;
    return query.integer(0);
}

void Books::setSetting(const std::string &key, std::int64_t value)
{
    Statement(m_database, "INSERT OR REPLACE INTO setting VALUES (?, ?)").bind(key, value).run();
}

std::vector<Order> Books::orders(Statement &query)
{
    std::vector<Order> found;
    while (query.step())
        found.push_back(orderFrom(query));
    return found;
}

std::int64_t Books::largestId(const std::string &table)
{
    Statement query(m_database, "SELECT coalesce(max(id), 0) FROM " + table);
    query.step();
    return query.integer(0);
}

} // namespace sandbox
