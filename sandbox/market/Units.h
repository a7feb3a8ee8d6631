#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace sandbox {

/** Money and prices are whole cents (1 yuan = 100), quantities whole shares, times milliseconds since 1970.
 */
using Cents = std::int64_t;
using Shares = std::int64_t;
using Millis = std::int64_t;
using UserId = std::int64_t;

/** "1234.50", "-0.05": yuan with two decimals and no grouping, as amounts travel on the wire. */
std::string yuanText(Cents amount);

/** numerator / denominator with so many decimals, rounded half away from zero; "0.00" when the denominator is
 * 0. */
std::string ratioText(std::int64_t numerator, std::int64_t denominator, int decimals);

/**
 * Reads a decimal number of yuan such as "12", "12.3" or "12.340" into ten-thousandths of a yuan, so that the
 * caller can tell a price that is not on a cent. Nothing when the text is not such a number, is negative, has
 * more than four decimals that count, or exceeds 10^11 yuan.
 */
std::optional<std::int64_t> parseYuanTenThousandths(std::string_view text);

/** Reads an amount of yuan into cents; nothing when it is not a number or has a fraction of a cent. */
std::optional<Cents> parseYuan(std::string_view text);

/** Reads a whole number of shares, digits only; nothing otherwise or above 10^11. */
std::optional<Shares> parseShares(std::string_view text);

} // namespace sandbox
