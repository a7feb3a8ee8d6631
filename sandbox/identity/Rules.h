#pragma once

#include <string_view>

namespace sandbox::identity {

/// A mobile number of the mainland: 11 digits with a known beginning.
[[nodiscard]] bool isCell(std::string_view text);

/// Exactly six digits: an SMS code or a trade password.
[[nodiscard]] bool isSixDigits(std::string_view text);

/// 16 to 19 digits.
[[nodiscard]] bool isBankCard(std::string_view text);

/// 15 or 18 digits, or 17 digits and "X" or "x".
[[nodiscard]] bool isIdentityNumber(std::string_view text);

/// 2 to 20 Chinese characters (U+4E00 to U+9FA5).
[[nodiscard]] bool isRealName(std::string_view text);

} // namespace sandbox::identity
