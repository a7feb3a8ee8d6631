#include "ledger/Events.h"

#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>
#include <utility>

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

template <std::size_t Index = 0> Event readAs(std::size_t wanted, const nlohmann::json &payload)
{
    if constexpr (Index < std::variant_size_v<Event>) {
        if (Index == wanted)
            return payload.get<std::variant_alternative_t<Index, Event>>();
        return readAs<Index + 1>(wanted, payload);
    }
    throw std::runtime_error("unknown kind of event");
}

} // namespace

std::string eventKind(const Event &event)
{
    return kKinds[event.index()];
}

std::string eventPayload(const Event &event)
{
    return std::visit([](const auto &happened) { return nlohmann::json(happened).dump(); }, event);
}

Event readEvent(std::string_view kind, std::string_view payload)
{
    std::size_t index = 0;
    while (index < std::size(kKinds) && kind != kKinds[index])
        ++index;
    try {
        return readAs(index, nlohmann::json::parse(payload));
    } catch (const nlohmann::json::exception &error) {
        throw std::runtime_error("event " + std::string(kind) + ": " + error.what());
    }
}

} // namespace sandbox
