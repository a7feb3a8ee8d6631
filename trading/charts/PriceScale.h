#pragma once

#include <QList>

/// Prices as heights of a picture: `highest` lies at `top`, `lowest` at `bottom`, points from above.
struct PriceScale {
    double lowest = 0;
    double highest = 1;
    double top = 0;
    double bottom = 1;

    double y(double price) const;
    double price(double y) const;
    bool holds(double price) const { return price >= lowest && price <= highest; }

    /// The round prices between the two ends, from below: multiples of 1, 2 or 5 times a power of ten and of
    /// the cent, `atMost` of them.
    QList<double> roundPrices(int atMost) const;
    /// Both ends moved outwards by `part` of the span; a scale without a span gets one of a fiftieth of its
    /// price.
    PriceScale padded(double part) const;
};
