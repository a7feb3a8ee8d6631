#include "core/util/Colour.h"

#include <algorithm>

Colour colorWithHexString(const QString &text, double alpha)
{
    QString digits = text.trimmed().toUpper();
    if (digits.size() < 6)
        return {};
    if (digits.startsWith(QLatin1String("0X")))
        digits.remove(0, 2);
    if (digits.startsWith(u'#'))
        digits.remove(0, 1);

    const auto isHex = [](QChar c) { return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'F'); };
    if (digits.size() != 6 || !std::all_of(digits.begin(), digits.end(), isHex))
        return {};
    const auto part = [&digits](qsizetype at) { return digits.sliced(at, 2).toInt(nullptr, 16) / 255.0; };
    return {part(0), part(2), part(4), alpha};
}
