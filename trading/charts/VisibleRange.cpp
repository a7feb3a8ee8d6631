#include "trading/charts/VisibleRange.h"

#include <algorithm>

void VisibleRange::setTotal(int candles)
{
    const bool atEnd = start + shown >= total;
    total = candles;
    if (atEnd)
        start = total - shown;
    clamp();
}

void VisibleRange::pan(double candles)
{
    start += candles;
    clamp();
}

void VisibleRange::zoom(double factor, double anchor)
{
    const double before = shown;
    shown = std::clamp(shown * factor, fewest, std::max(fewest, total));
    start += (before - shown) * anchor;
    clamp();
}

void VisibleRange::reveal(int index)
{
    start = std::clamp(start, index + 1 - shown, static_cast<double>(index));
    clamp();
}

void VisibleRange::clamp()
{
    shown = std::clamp(shown, fewest, std::max(usual, total));
    start = std::clamp(start, 0.0, std::max(0.0, total - shown));
}
