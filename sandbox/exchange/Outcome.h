#pragma once

#include "market/Quote.h"
#include "market/Units.h"

#include <string>
#include <variant>

namespace sandbox {

/** The rule that refused a request. */
enum class Rule {
    Account, ///< the user has no account here
    UnknownStock,
    Suspended,
    Session,      ///< not a time at which orders are taken
    Quantity,     ///< not a number of shares, or more than one order may carry
    Lot,          ///< not a multiple of 100 (or below the board's minimum)
    OddRemainder, ///< an odd remainder is sold whole
    Price,        ///< not a price
    Tick,         ///< not on a cent
    Limit,        ///< outside the day's limits
    Cash,         ///< not enough money, fees included
    Position,     ///< not enough sellable shares
    UnknownOrder,
    NotOpen,     ///< the order is filled or cancelled already
    CancelWindow ///< cancels are not taken at this time
};

/** A request that was refused: the books did not change. The message is in Chinese, for the user. */
struct Refusal {
    Rule rule;
    std::string message;
};

/** Either what was asked for or why not. */
template <typename Value> using Outcome = std::variant<Value, Refusal>;

/** An order as the user typed it; the texts are checked here, so every refusal has one home. */
struct OrderRequest {
    UserId user = 0;
    Side side = Side::Buy;
    std::string stockCode;
    std::string price; ///< yuan
    std::string shares;
};

} // namespace sandbox
