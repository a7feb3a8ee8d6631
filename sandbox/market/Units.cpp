#include "market/Units.h"

#include <algorithm>

namespace sandbox {

namespace {

constexpr std::int64_t kLargestNumber = 100'000'000'000;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

std::optional<std::int64_t> parseDigits(std::string_view text)
{
    if (text.empty() || !std::all_of(text.begin(), text.end(), isDigit))
        return std::nullopt;
    std::int64_t value = 0;
    for (const char c : text) {
        value = value * 10 + (c - '0');
        if (value > kLargestNumber)
            return std::nullopt;
    }
    return value;
}

std::string withDecimals(std::int64_t value, int decimals)
{
    const bool negative = value < 0;
    std::string digits = std::to_string(negative ? -value : value);
    const auto wanted = static_cast<std::size_t>(decimals) + 1;
    if (digits.size() < wanted)
        digits.insert(0, wanted - digits.size(), '0');
    if (decimals > 0)
        digits.insert(digits.size() - static_cast<std::size_t>(decimals), 1, '.');
    return negative ? "-" + digits : digits;
}

} // namespace

std::string yuanText(Cents amount)
{
    return withDecimals(amount, 2);
}

std::string ratioText(std::int64_t numerator, std::int64_t denominator, int decimals)
{
    if (denominator == 0)
        return withDecimals(0, decimals);
    const bool negative = (numerator < 0) != (denominator < 0);
    // Sums of money times a power of ten outgrow 64 bits.
    __extension__ using Wide = __int128;
    Wide scaled = numerator < 0 ? -static_cast<Wide>(numerator) : numerator;
    const Wide divisor = denominator < 0 ? -static_cast<Wide>(denominator) : denominator;
    for (int i = 0; i < decimals; ++i)
        scaled *= 10;
    const auto rounded = static_cast<std::int64_t>((2 * scaled + divisor) / (2 * divisor));
    return withDecimals(negative ? -rounded : rounded, decimals);
}

std::optional<std::int64_t> parseYuanTenThousandths(std::string_view text)
{
    const auto point = text.find('.');
    const auto whole = parseDigits(text.substr(0, point));
    if (!whole)
        return std::nullopt;
    std::int64_t fraction = 0;
    if (point != std::string_view::npos) {
        std::string_view decimals = text.substr(point + 1);
        if (decimals.empty() || !std::all_of(decimals.begin(), decimals.end(), isDigit))
            return std::nullopt;
        while (decimals.size() > 4 && decimals.back() == '0')
            decimals.remove_suffix(1);
        if (decimals.size() > 4)
            return std::nullopt;
        std::string padded(decimals);
        padded.resize(4, '0');
        fraction = *parseDigits(padded);
    }
    return *whole * 10'000 + fraction;
}

std::optional<Cents> parseYuan(std::string_view text)
{
    const auto value = parseYuanTenThousandths(text);
    if (!value || *value % 100 != 0)
        return std::nullopt;
    return *value / 100;
}

std::optional<Shares> parseShares(std::string_view text)
{
    return parseDigits(text);
}

} // namespace sandbox
