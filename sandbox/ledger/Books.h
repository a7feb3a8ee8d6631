#pragma once

#include "ledger/Events.h"
#include "ledger/Order.h"
#include "market/Market.h"
#include "store/Database.h"

#include <optional>
#include <string>
#include <vector>

namespace sandbox {

struct Account {
    UserId user = 0;
    Cents available = 0;
    Cents frozen = 0;
    Cents unsettled = 0;
    Millis createdAt = 0;
};

struct Position {
    std::int64_t id = 0;
    UserId user = 0;
    std::string stock;
    Shares shares = 0;
    Shares boughtToday = 0;
    Shares frozen = 0;
    Cents cost = 0;
    Cents buyCost = 0;
    Shares buyShares = 0;
    Cents sellIncome = 0;
    Shares sellShares = 0;
    std::int64_t version = 0;
    Millis createdAt = 0;
    Millis updatedAt = 0;

    Shares available() const { return shares - boughtToday - frozen; }
};

/**
 * Cash, shares, orders and deals in the database. They change only by events: record() writes the event and
 * what follows from it, inside the caller's Transaction. Throws StoreError, also for an event that would
 * break a bound (money or shares below zero), and then the caller's transaction must be given up.
 */
class Books {
public:
    /** Creates the tables that are missing. */
    explicit Books(Database &database);

    void record(Millis time, const Event &event);

    std::optional<Account> account(UserId user);
    /** With shares only, by stock code. */
    std::vector<Position> positions(UserId user);
    std::optional<Position> position(UserId user, const std::string &stock);

    std::optional<Order> order(std::int64_t id);
    /** Of all users, of one, or in one stock; oldest first. */
    std::vector<Order> openOrders();
    std::vector<Order> openOrders(UserId user);
    std::vector<Order> openOrders(const std::string &stock);
    /** Newest first. */
    std::vector<Order> ordersOf(UserId user, int day, int limit, int offset);
    std::vector<Deal> dealsOf(UserId user, int day, int limit, int offset);
    std::int64_t nextOrderId();
    std::int64_t nextDealId();

    UsedDepth depthUsed(const std::string &stock);
    std::vector<PriceMove> priceMoves();
    /** The last day that began; 0 when none did. */
    int lastDay();

    std::optional<std::int64_t> setting(const std::string &key);
    void setSetting(const std::string &key, std::int64_t value);

private:
    void apply(Millis time, const AccountOpened &event);
    void apply(Millis time, const CashMoved &event);
    void apply(Millis time, const SharesGranted &event);
    void apply(Millis time, const OrderTaken &event);
    void apply(Millis time, const OrderQueued &event);
    void apply(Millis time, const OrderFilled &event);
    void apply(Millis time, const CancelAsked &event);
    void apply(Millis time, const OrderClosed &event);
    void apply(Millis time, const DayBegan &event);
    void apply(Millis time, const PriceMoved &event);
    void apply(Millis time, const ClockSet &event);

    void moveCash(UserId user, Cents available, Cents frozen);
    void addShares(Millis time, UserId user, const std::string &stock, Shares shares, Shares boughtToday,
                   Cents cost);
    void removeShares(Millis time, const OrderFilled &event);
    std::vector<Order> orders(Statement &query);
    std::int64_t largestId(const std::string &table);

    Database &m_database;
};

} // namespace sandbox
