#include "trading/charts/PriceScale.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double cent = 0.01;

/// The least round step that is not below `least`.
double roundStep(double least)
{
    const double power = std::pow(10, std::floor(std::log10(std::max(least, cent))));
    for (const double digit : {1.0, 2.0, 5.0}) {
        if (digit * power >= least * (1 - 1e-9))
            return digit * power;
    }
    return 10 * power;
}
} // namespace

double PriceScale::y(double price) const
{
    return bottom - (price - lowest) / (highest - lowest) * (bottom - top);
}

double PriceScale::price(double y) const
{
    return lowest + (bottom - y) / (bottom - top) * (highest - lowest);
}

QList<double> PriceScale::roundPrices(int atMost) const
{
    if (atMost < 1 || highest <= lowest)
        return {};
    const double step = roundStep((highest - lowest) / atMost);
    QList<double> prices;
    // Multiples, not sums: each is off by its own rounding only.
    for (double multiple = std::ceil(lowest / step - 1e-9); multiple * step <= highest + step * 1e-9;
         ++multiple)
        prices.append(multiple * step);
    return prices.mid(0, atMost);
}

PriceScale PriceScale::padded(double part) const
{
    PriceScale scale = *this;
    const double span = highest - lowest;
    const double margin = span > 0 ? span * part : std::max(highest / 100, cent);
    scale.lowest -= margin;
    scale.highest += margin;
    return scale;
}
