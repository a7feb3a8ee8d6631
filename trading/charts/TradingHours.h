#pragma once

#include "trading/charts/Series.h"

/// The axis of a trading day: from 9:30 to 15:00 with the lunch break taken out, or a whole day where trades
/// come outside these hours.
class TradingHours {
public:
    /// The hours that hold all of `minutes`.
    static TradingHours of(const QList<Minute> &minutes);

    /// 0 the begin of the day, 1 its end. Before, after and in the break: the nearest trading minute.
    double position(int minute) const;

    struct Mark {
        QString text;
        double position;
    };
    QList<Mark> marks() const;

private:
    bool wholeDay = false;
};
