#pragma once

#include "exchange/Brokerage.h"
#include "http/Envelope.h"
#include "identity/Users.h"
#include "messages/Messages.h"

namespace sandbox::http {

// Records as they travel: every value is text; money in yuan with two decimals, times in milliseconds since
// 1970.

[[nodiscard]] Json userJson(const identity::User &user, const std::string &token, bool wasRegistered);
[[nodiscard]] Json messageJson(const messages::Message &message);
[[nodiscard]] Json holdingJson(const Holding &holding);
[[nodiscard]] Json entrustJson(const Order &order, const StockList &stocks);
/// The fewer fields of an entrust that can be cancelled.
[[nodiscard]] Json openEntrustJson(const Order &order, const StockList &stocks);
[[nodiscard]] Json dealJson(const Deal &deal, const StockList &stocks);
/// Ten levels of one side, {"price", "volume"}; a level that does not exist is "0.00" and "0".
[[nodiscard]] Json levelsJson(const std::array<Level, kBookDepth> &levels);
[[nodiscard]] Json quoteJson(const Quote &quote);
[[nodiscard]] Json stockDetailJson(const StockDetail &detail);

} // namespace sandbox::http
