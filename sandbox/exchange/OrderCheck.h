#pragma once

#include "exchange/Outcome.h"
#include "ledger/Books.h"
#include "market/Market.h"

namespace sandbox {

/** An order that passed every check, with what must be frozen for it. */
struct CheckedOrder {
    UserId user = 0;
    const Stock *stock = nullptr;
    Side side = Side::Buy;
    Cents price = 0;
    Shares shares = 0;
    PriceLimits limits;
    Cents frozenCash = 0;
};

/**
 * The checks a broker makes before an order goes to the exchange, always in this order: account, stock,
 * suspension, session, quantity, lot or odd remainder, price, tick, limits, then money or shares. The first
 * that fails answers. Changes nothing.
 */
Outcome<CheckedOrder> checkOrder(const OrderRequest &request, Market &market, Books &books, Millis now);

/** The most a buy with so much left can still cost, fees included, given what it has traded so far. */
Cents mostStillNeeded(Cents price, Shares remaining, Cents filledMoney, int date);

} // namespace sandbox
