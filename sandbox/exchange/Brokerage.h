#pragma once

#include "exchange/Outcome.h"
#include "ledger/Holding.h"
#include "ledger/Order.h"
#include "market/Calendar.h"
#include "market/Clock.h"
#include "market/Quote.h"
#include "market/StockList.h"
#include "market/Units.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sandbox {

/** How a cancel request stands. */
enum class CancelProgress {
    Pending, ///< not answered by the exchange yet
    Done,    ///< what was not filled is cancelled
    TooLate, ///< the order was filled before the cancel arrived
    NotAsked ///< no cancel was requested
};

/** Settings fixed at start. */
struct BrokerageOptions {
    std::string databasePath; ///< ":memory:" for none
    std::uint64_t seed = 1;   ///< of the companies and prices; a database keeps the seed it was made with
    bool marketHours = false; ///< false: open around the clock, every calendar day a trading day
};

/**
 * The whole market and all accounts: what the routes call.
 *
 * Threads: every function may be called from any thread; one mutex inside orders them. Each call first brings
 * the market up to the clock's now (fills, cancels, day ends), so answers depend on the clock and on the
 * order of requests only, never on how often tick() runs. Every change is committed before the call returns.
 *
 * Not simulated: users' orders do not move the price; dividends; delays of quotes.
 *
 * Throws StoreError when the database fails, and std::runtime_error when it belongs to another seed or
 * market-hours setting.
 */
class Brokerage {
public:
    Brokerage(BrokerageOptions options, Clock &clock);
    ~Brokerage();
    Brokerage(const Brokerage &) = delete;
    Brokerage &operator=(const Brokerage &) = delete;

    /** Brings the market up to the clock's now. Called by a timer so that fills happen without requests. */
    void tick();

    // Accounts

    /** Opens an empty account; nothing happens when there is one. */
    void createAccount(UserId user);
    /** Adds money; the amount is above 0. The reason is kept in the event log. */
    Outcome<Cents> deposit(UserId user, Cents amount, const std::string &reason);
    /** Puts shares into an account, sellable at once, at the given cost of all of them. */
    Outcome<Shares> grantShares(UserId user, const std::string &stockCode, Shares shares, Cents cost);
    /**
     * Makes the account of a new demo user: 200,000 yuan and four holdings sellable at once, one with an odd
     * remainder. Nothing happens when the user has an account.
     */
    void createDemoAccount(UserId user);

    AccountSummary accountSummary(UserId user);
    /** Draws the lines of an account; the close-out line is not above the warning line. */
    Outcome<LossLines> setLossLines(UserId user, LossLines lines);
    /** Cents that may be used for buying, 0 without an account. */
    Cents usableMoney(UserId user);
    /** By stock code; empty without an account. */
    std::vector<Holding> holdings(UserId user);

    // Orders

    /** Takes an order and matches it at once against the displayed depth. Answers the order as it then
     * stands. */
    Outcome<Order> placeOrder(const OrderRequest &request);
    /** Asks the exchange to cancel; it answers about a second later and may find the order filled. */
    Outcome<Order> cancelOrder(UserId user, const std::string &entrustNo);
    /** Of the user's own order with this identifier; nothing when there is none. */
    std::optional<CancelProgress> cancelProgress(UserId user, std::int64_t orderId);
    /** The user's own order; nothing when there is none. */
    std::optional<Order> order(UserId user, std::int64_t orderId);
    std::optional<Order> orderByEntrustNo(UserId user, const std::string &entrustNo);
    /** Orders that can still be cancelled, newest first. */
    std::vector<Order> openOrders(UserId user);
    /** Orders and deals of the running trading day, newest first, page 0 on, kPageSize a page. */
    std::vector<Order> ordersToday(UserId user, int page);
    std::vector<Deal> dealsToday(UserId user, int page);
    static constexpr int kPageSize = 20;
    /** The exchange turns an open order down, as a test of what the client then shows. Status Rejected. */
    Outcome<Order> rejectOrder(const std::string &entrustNo, const std::string &reason);

    // Market

    const StockList &stocks() const;
    /** Book and latest price; nothing for an unknown code. */
    std::optional<Quote> quote(const std::string &stockCode);
    std::optional<StockDetail> stockDetail(const std::string &stockCode);
    /** From now, or from the next trading moment in a break or an auction, to the end of the day the price
     * goes on from here, clamped to the day's limits. Answers the price it then has. */
    Outcome<Cents> movePrice(const std::string &stockCode, Cents price);
    enum class Seal { LimitUp, LimitDown, None };
    /** Holds the price at a limit, with nothing displayed on the other side, to the end of the day; None lets
     * it go. */
    Outcome<Cents> sealBoard(const std::string &stockCode, Seal seal);

    // Clock: as the Clock's own functions, remembered over a restart, and the market follows at once

    Millis now() const;
    void freezeClock();
    void setClockSpeedPercent(int percent);
    void stepClock(Millis duration);
    /** False when the time is in the past. */
    bool jumpClock(Millis time);
    /** Begin of the next trading day (its opening auction with market hours). */
    Millis nextTradingDay() const;
    /** What the exchange does now. */
    Phase phase() const;
    /** The running trading day, 20260105. */
    int tradingDay() const;

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

/** "上海A股" or "深圳A股". */
std::string exchangeName(const Stock &stock);

} // namespace sandbox
