#include "ledger/Events.h"

#include <iterator>
#include <nlohmann/json.hpp>

namespace sandbox {

NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(AccountOpened, user)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(CashMoved, user, amount, reason)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(SharesGranted, user, stock, shares, cost)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(OrderTaken, order, user, stock, side, price, lowerLimit, upperLimit,
                                   shares, frozenCash, status, queueAhead, day)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(OrderQueued, order, status, queueAhead)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(OrderFilled, deal, order, user, stock, side, price, shares, commission,
                                   stampTax, transferFee, frozenDelta, availableDelta, costDelta, status, day,
                                   depthPrice, depthEpoch)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(CancelAsked, order, status)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(OrderClosed, order, user, stock, status, releasedCash, releasedShares,
                                   note)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(DayBegan, day)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(PriceMoved, stock, day, moment, kind, shift)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(ClockSet, real, simulated, speedPercent)

namespace {

// In the order of the variant.
constexpr const char *kKinds[] = {"AccountOpened", "CashMoved",   "SharesGranted", "OrderTaken",
                                  "OrderQueued",   "OrderFilled", "CancelAsked",   "OrderClosed",
                                  "DayBegan",      "PriceMoved",  "ClockSet"};
static_assert(std::size(kKinds) == std::variant_size_v<Event>);

} // namespace

std::string eventKind(const Event &event)
{
    return kKinds[event.index()];
}

std::string eventPayload(const Event &event)
{
    return std::visit([](const auto &happened) { return nlohmann::json(happened).dump(); }, event);
}

} // namespace sandbox
