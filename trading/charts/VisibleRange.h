#pragma once

/// Which candles of a chart are seen: `count` of them from `first` on, both in candles with fractions, so
/// that dragging and zooming are smooth. Always inside what there is; with less than `fewest` candles these
/// stand at the left.
class VisibleRange {
public:
    static constexpr double fewest = 20;
    static constexpr double usual = 60;

    double first() const { return start; }
    double count() const { return shown; }

    /// How many candles there are. What was at the end stays there when the list grows.
    void setTotal(int total);
    /// To later candles by `candles`, to earlier ones when negative.
    void pan(double candles);
    /// Shows `factor` times as many; what stands at `anchor` (0 the left end, 1 the right one) stays there.
    void zoom(double factor, double anchor);
    /// The least move that brings candle `index` wholly into sight.
    void reveal(int index);

private:
    void clamp();

    double start = 0;
    double shown = usual;
    double total = 0;
};
