#pragma once

#include "market/Quote.h"
#include "market/Units.h"

#include <string>

namespace sandbox {

/** The wire's codes 0 to 9. */
enum class OrderStatus {
    Held = 0,            ///< taken, waits for the next session
    Accepted = 2,        ///< stands at the exchange
    CancelRequested = 3, ///< nothing filled so far
    CancelRequestedPartlyFilled = 4,
    PartlyCancelled = 5, ///< some filled, the rest cancelled or expired
    Cancelled = 6,       ///< cancelled or expired with nothing filled
    PartlyFilled = 7,
    Filled = 8,
    Rejected = 9 ///< refused by the exchange after it was taken
};

/** True while the order can still trade or be cancelled. */
bool isOpen(OrderStatus status);

/** The order's number as text, as shown and sent for cancelling. */
std::string entrustNo(std::int64_t orderId);

struct Order {
    std::int64_t id = 0;
    UserId user = 0;
    std::string stockCode;
    Side side = Side::Buy;
    Cents price = 0;
    Shares shares = 0;
    Shares filled = 0;
    Cents filledMoney = 0; ///< price x shares over its deals, before fees
    Cents frozenCash = 0;  ///< still frozen for it
    Cents commission = 0;  ///< of all its deals so far; so are the other two
    Cents stampTax = 0;
    Cents transferFee = 0;
    OrderStatus status = OrderStatus::Accepted;
    Shares queueAhead = 0; ///< shares displayed at its price before it came
    int day = 0;           ///< trading day, 20260105
    Millis createdAt = 0;
    Millis updatedAt = 0;
    Millis cancelRequestedAt = 0; ///< 0: never
    std::string note;             ///< why it was rejected or expired, in Chinese; else ""

    Shares remaining() const { return shares - filled; }
};

struct Deal {
    std::int64_t id = 0;
    std::int64_t orderId = 0;
    UserId user = 0;
    std::string stockCode;
    Side side = Side::Buy;
    Cents orderPrice = 0;
    Shares orderShares = 0;
    OrderStatus orderStatus = OrderStatus::Filled;
    Cents price = 0;
    Shares shares = 0;
    Cents commission = 0; ///< this deal's part; so are the other two
    Cents stampTax = 0;
    Cents transferFee = 0;
    int day = 0;
    Millis time = 0;

    Cents money() const { return price * shares; }
};

} // namespace sandbox
