#include "core/util/Amount.h"

#include "core/util/Service.h"
#include "core/util/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace {
QString withYuan(const QString &amount)
{
    return amount.isEmpty() ? amount : amount + QStringLiteral("元");
}
} // namespace

QString twoDecimals(double number)
{
    std::array<char, 512> text;
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed, 2).ptr;
    return QString::fromLatin1(text.data(), end - text.data());
}

QString buttonAmount(const QVariant &amount)
{
    if (Service::whetherAnEmptyString(amount))
        return {};
    const float hundredfold = static_cast<float>(doubleValue(amount)) * 100;
    if (!std::isfinite(hundredfold))
        return labelAmount(amount);
    return Service::formatAmountNumber(twoDecimals(std::floor(static_cast<double>(hundredfold)) / 100));
}

QString buttonAmountWithYuan(const QVariant &amount)
{
    return withYuan(buttonAmount(amount));
}

QString labelAmount(const QVariant &amount)
{
    if (Service::whetherAnEmptyString(amount))
        return {};
    return Service::formatAmountNumber(twoDecimals(doubleValue(amount)));
}

QString labelAmountWithYuan(const QVariant &amount)
{
    return withYuan(labelAmount(amount));
}

UnitText setAttributeWithText(const QString &text)
{
    constexpr qsizetype unitLength = 3;
    const qsizetype unit = std::min(unitLength, text.size());
    return {text.chopped(unit), text.last(unit)};
}

QString clearSpaceAndWrap(const QString &text)
{
    return trimBlanks(Service::removeSpacesFromString(text));
}
