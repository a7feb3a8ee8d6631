#pragma once

#include "ledger/Order.h"
#include "market/PriceProcess.h"
#include "market/Units.h"

#include <string>
#include <string_view>
#include <variant>

namespace sandbox {

/**
 * Everything that can happen to the books. Each kind carries every figure needed to change them, so that the
 * events read in order give the books again; in the event table the kind is the type's name and the payload a
 * JSON object with the members' names.
 */

struct AccountOpened {
    UserId user = 0;
};

/** Money from or to the outside: amount is added to the available money. */
struct CashMoved {
    UserId user = 0;
    Cents amount = 0;
    std::string reason;
};

/** Shares from the outside, sellable at once. */
struct SharesGranted {
    UserId user = 0;
    std::string stock;
    Shares shares = 0;
    Cents cost = 0;
};

/** An order was taken: frozenCash goes from available to frozen; a seller's shares are frozen. */
struct OrderTaken {
    std::int64_t order = 0;
    UserId user = 0;
    std::string stock;
    int side = 0;
    Cents price = 0;
    Cents lowerLimit = 0;
    Cents upperLimit = 0;
    Shares shares = 0;
    Cents frozenCash = 0;
    int status = 0;
    Shares queueAhead = 0;
    int day = 0;
};

/** A held order went to the exchange, or shares before it in the queue were traded. */
struct OrderQueued {
    std::int64_t order = 0;
    int status = 0;
    Shares queueAhead = 0;
};

/**
 * A deal. frozenDelta and availableDelta are added to the user's money, costDelta to the holding's cost; the
 * frozen cash of the order changes by frozenDelta too. depthEpoch is that of the displayed level the deal
 * used up, 0 when it used none.
 */
struct OrderFilled {
    std::int64_t deal = 0;
    std::int64_t order = 0;
    UserId user = 0;
    std::string stock;
    int side = 0;
    Cents price = 0;
    Shares shares = 0;
    Cents commission = 0;
    Cents stampTax = 0;
    Cents transferFee = 0;
    Cents frozenDelta = 0;
    Cents availableDelta = 0;
    Cents costDelta = 0;
    int status = 0;
    int day = 0;
    Cents depthPrice = 0;
    std::int64_t depthEpoch = 0;
};

struct CancelAsked {
    std::int64_t order = 0;
    int status = 0;
};

/** Cancelled, expired or rejected: releasedCash goes back to available, releasedShares become sellable. */
struct OrderClosed {
    std::int64_t order = 0;
    UserId user = 0;
    std::string stock;
    int status = 0;
    Cents releasedCash = 0;
    Shares releasedShares = 0;
    std::string note;
};

/** A new trading day begins: what was bought can be sold, sales' proceeds can be withdrawn. */
struct DayBegan {
    int day = 0;
};

/** A hand on a price; kind as PriceMove::Kind. */
struct PriceMoved {
    std::string stock;
    int day = 0;
    int moment = 0;
    int kind = 0;
    Cents shift = 0;
};

struct ClockSet {
    Millis real = 0;
    Millis simulated = 0;
    int speedPercent = 100;
};

using Event = std::variant<AccountOpened, CashMoved, SharesGranted, OrderTaken, OrderQueued, OrderFilled,
                           CancelAsked, OrderClosed, DayBegan, PriceMoved, ClockSet>;

std::string eventKind(const Event &event);
std::string eventPayload(const Event &event);

} // namespace sandbox
