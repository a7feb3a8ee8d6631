#pragma once

#include <string>
#include <vector>

namespace sandbox::identity {

struct Bank {
    std::string name;
    std::string channelCode;
};

/// The banks whose cards can be bound.
[[nodiscard]] const std::vector<Bank> &banks();

/// Null when there is no such channel.
[[nodiscard]] const Bank *findBank(const std::string &channelCode);

} // namespace sandbox::identity
