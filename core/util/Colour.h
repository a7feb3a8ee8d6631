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

Colour colorWithHexString(const QString &text, double alpha = 1);
