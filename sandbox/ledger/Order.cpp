#include "ledger/Order.h"

namespace sandbox {

bool isOpen(OrderStatus status)
{
    switch (status) {
    case OrderStatus::Held:
    case OrderStatus::Accepted:
    case OrderStatus::CancelRequested:
    case OrderStatus::CancelRequestedPartlyFilled:
    case OrderStatus::PartlyFilled:
        return true;
    case OrderStatus::PartlyCancelled:
    case OrderStatus::Cancelled:
    case OrderStatus::Filled:
    case OrderStatus::Rejected:
        return false;
    }
    return false;
}

std::string entrustNo(std::int64_t orderId)
{
    return std::to_string(10'000'000 + orderId);
}

} // namespace sandbox
