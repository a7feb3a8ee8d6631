#include "identity/Rules.h"

#include <algorithm>
#include <array>

namespace sandbox::identity {
namespace {

bool digits(std::string_view text, std::size_t least, std::size_t most)
{
    return text.size() >= least && text.size() <= most &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

} // namespace

bool isCell(std::string_view text)
{
    static constexpr std::array<std::string_view, 6> beginnings{"145", "147", "170", "176", "177", "178"};
    if (!digits(text, 11, 11))
        return false;
    const std::string_view two = text.substr(0, 2);
    return two == "13" || two == "15" || two == "18" ||
           std::find(beginnings.begin(), beginnings.end(), text.substr(0, 3)) != beginnings.end();
}

bool isSixDigits(std::string_view text)
{
    return digits(text, 6, 6);
}

bool isBankCard(std::string_view text)
{
    return digits(text, 16, 19);
}

bool isIdentityNumber(std::string_view text)
{
    if (digits(text, 15, 15) || digits(text, 18, 18))
        return true;
    return text.size() == 18 && digits(text.substr(0, 17), 17, 17) && (text[17] == 'X' || text[17] == 'x');
}

bool isRealName(std::string_view text)
{
    if (text.size() % 3 != 0 || text.size() < 6 || text.size() > 60)
        return false;
    for (std::size_t i = 0; i < text.size(); i += 3) {
        const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[i + at]); };
        if ((byte(0) & 0xF0) != 0xE0 || (byte(1) & 0xC0) != 0x80 || (byte(2) & 0xC0) != 0x80)
            return false;
        const int point = (byte(0) & 0x0F) << 12 | (byte(1) & 0x3F) << 6 | (byte(2) & 0x3F);
        if (point < 0x4E00 || point > 0x9FA5)
            return false;
    }
    return true;
}

} // namespace sandbox::identity
