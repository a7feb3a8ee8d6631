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
 * Takes orders and works them through the market by price, then time: against the displayed depth and against
 * the orders of our users, which at one price stand behind what is displayed. An order that comes takes what
 * it reaches at the price that stands there. One that rests trades at its own price: against levels that come
 * to reach it, and, when others trade at its price, from what they trade once the queue before it is gone, at
 * most a quarter of it.
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
    /** Adds the orders of our users to a displayed book, while continuous trading lasts or pauses. */
    void show(Quote &quote, Millis now);

private:
    /** The open orders of our users that are being worked on, those that come first in front. */
    using Orders = std::vector<Order>;
    /** What our users have had of others' deals at one moment, by stock and side. */
    using Shared = std::map<std::pair<std::string, Side>, Shares>;

    void workDay(int day, Millis from, Millis to);
    void workMoment(Orders &orders, int day, int moment);
    void finishCancels(Orders &orders, Millis now);
    void expire(Millis close);
    Millis cancelDue(const Order &order) const;

    Orders openOrders(const std::string &stockCode);
    void matchArriving(Order &order, Orders &others, const Stock &stock, Millis now);
    void matchResting(Order &order, Orders &others, const Stock &stock, Cents price, Millis now,
                      Shared &shared);
    void matchAuction(Order &order, const Stock &stock, Cents print, Millis now, Shared &shared);
    void forward(Order &order, Orders &others, const Stock &stock, Millis now);
    void takeDepth(Order &order, Orders &others, const Stock &stock, Millis now, bool atOwnPrice);
    /** Trades with the others whose price is better for the order than `before`. */
    void takeOrders(Order &order, Orders &others, Cents before, Millis now);
    void trade(Order &order, Order &other, Millis now);
    bool voidOutsideCage(Order &order, const Stock &stock, Millis now);
    Shares shareOf(const Order &order, Shares open, Shared &shared) const;
    void queue(Order &order, Shares ahead, OrderStatus status, Millis now);
    void fill(Order &order, Cents price, Shares shares, const DisplayedLevel &level, Millis now);
    void close(Order &order, OrderStatus status, const std::string &note, Millis now);

    Market &m_market;
    Books &m_books;
};

} // namespace sandbox
