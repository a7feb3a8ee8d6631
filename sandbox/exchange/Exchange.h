#pragma once

#include "exchange/OrderCheck.h"
#include "ledger/Books.h"
#include "market/Market.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace sandbox {

/**
 * Takes orders and works them through the market: price-time priority among our users' orders, each against
 * the displayed depth. An order that comes takes the levels it reaches at their prices. One that rests trades
 * at its own price: against levels that come to reach it, and, when others trade at its price, from what they
 * trade once the queue before it is gone, at most a quarter of it.
 *
 * Every function works inside the caller's Transaction.
 */
class Exchange {
public:
    Exchange(Market &market, Books &books) : m_market(market), m_books(books) {}

    /** How long the exchange takes to answer a cancel; a fill may come before it. */
    static constexpr Millis kCancelDelay = kSecond;

    /** Works through what happened after `from` up to and including `to`: moments, cancels, expiry, new days.
     */
    void advance(Millis from, Millis to);

    /** Takes a checked order and matches it where the session allows. Answers its identifier. */
    std::int64_t take(const CheckedOrder &checked, Millis now);
    void askCancel(const Order &order, Millis now);
    void reject(const Order &order, const std::string &reason, Millis now);
    /** Matches what rests of one stock again, after a hand moved its price. */
    void rematch(const std::string &stockCode, Millis now);

private:
    /** What our users have had of others' deals at one moment, by stock and side. */
    using Shared = std::map<std::pair<std::string, Side>, Shares>;

    void workDay(int day, Millis from, Millis to);
    void workMoment(std::vector<Order> &orders, int day, int moment);
    void finishCancels(std::vector<Order> &orders, Millis now);
    void expire(Millis close);
    Millis cancelDue(const Order &order) const;

    void matchArriving(Order &order, const Stock &stock, Millis now);
    void matchResting(Order &order, const Stock &stock, Millis now, Shared &shared);
    void matchAuction(Order &order, const Stock &stock, Millis now, Shared &shared);
    void forward(Order &order, const Stock &stock, Millis now);
    void takeDepth(Order &order, const Stock &stock, Millis now, bool atOwnPrice);
    bool voidOutsideCage(Order &order, const Stock &stock, Millis now);
    Shares shareOf(const Order &order, Shares open, Shared &shared) const;
    void queue(Order &order, Shares ahead, OrderStatus status, Millis now);
    void fill(Order &order, Cents price, Shares shares, const DisplayedLevel &level, Millis now);
    void close(Order &order, OrderStatus status, const std::string &note, Millis now);

    Market &m_market;
    Books &m_books;
};

} // namespace sandbox
