#pragma once

#include <QList>
#include <QRectF>

/// What a part of a chart means; the view gives each a colour, in this order.
enum class ChartTone { Text, Grid, Rise, Fall, Flat, Price, Average, Ma5, Ma10, Ma20, Cost };

/// A chart as rectangles and lines, in points from the upper left corner. Knows no colours and no painter.
struct ChartPicture {
    struct Bar {
        QRectF place;
        ChartTone tone = ChartTone::Flat;
        /// Only its outline.
        bool hollow = false;
    };
    struct Line {
        QList<QPointF> points;
        ChartTone tone = ChartTone::Flat;
        bool dashed = false;
        /// A faint area reaches from the line down to here; 0 for none.
        double areaTo = 0;
    };

    /// Drawn first, each with a width of one device pixel.
    QList<Line> grid;
    QList<Bar> bars;
    QList<Line> lines;
};
