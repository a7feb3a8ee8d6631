#pragma once

#include <QString>

/// Parts from 0 to 1; the clear colour is all zero.
struct Colour {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 0;
    bool operator==(const Colour &) const = default;
};

/// Six hexadecimal digits, "0x" and "#" before them allowed; the clear colour for anything else.
Colour colorWithHexString(const QString &text, double alpha = 1);

inline Colour KRColor_hexValue(const QString &text)
{
    return colorWithHexString(text);
}
