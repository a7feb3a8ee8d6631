#pragma once

#include "market/StockList.h"
#include "market/Units.h"

namespace sandbox {

/**
 * The exchange's figures. Each is a row of a table with the date from which it holds and where it comes from
 * (Rules.cpp); the functions answer what holds on a date given as 20260105.
 */

/** Up and down from the previous close, in percent. */
int dailyLimitPercent(Board board, bool specialTreatment, int date);

struct PriceLimits {
    Cents lower = 0;
    Cents upper = 0;
};

/** previousClose x (1 -/+ percent), rounded half up to the cent and at least a cent away from the previous
 * close. */
PriceLimits priceLimits(Cents previousClose, int percent);

/** How many shares one order may carry: at least minimum, in steps, at most maximum. */
struct LotRule {
    Shares minimum = 100;
    Shares step = 100;
    Shares maximum = 1'000'000;
};
LotRule lotRule(Board board, int date);

struct Fees {
    Cents commission = 0;
    Cents stampTax = 0;
    Cents transferFee = 0;

    Cents total() const { return commission + stampTax + transferFee; }
    Fees operator-(const Fees &other) const;
    bool operator==(const Fees &) const = default;
};

/**
 * Fees of one order that has traded so much money in all its deals together: each is rounded half up to the
 * cent, the commission has a minimum per order, the stamp tax is paid by sellers only. Nothing traded costs
 * nothing.
 */
Fees feesOf(bool sell, Cents money, int date);

/** In continuous trading a buy (sell) above (below) this is void: dated, only with market hours. */
PriceLimits priceCage(Cents buyReference, Cents sellReference, int date);

} // namespace sandbox
