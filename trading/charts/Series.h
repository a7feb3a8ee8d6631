#pragma once

#include <QList>
#include <QVariant>

/// One trading day of a stock. Prices in yuan, volume in shares, turnover in yuan.
struct Candle {
    /// 20260105.
    int day = 0;
    double open = 0;
    double high = 0;
    double low = 0;
    double close = 0;
    double volume = 0;
    double turnover = 0;
};

/// One minute of the running day. The average is that of the day so far, 0 when unknown.
struct Minute {
    /// Of the day in Shanghai: 570 is 9:30.
    int minute = 0;
    double price = 0;
    double average = 0;
    double volume = 0;
};

/// Reading what the service sends, oldest first. Whatever cannot be drawn is left out: what is no list or no
/// dictionary, has no time, or has a price that is not one. Of two with the same time the later one counts.
namespace Series {

/// Above it a figure is taken for garbage.
inline constexpr double largestPrice = 1e7;
/// The newest of a longer list are kept.
inline constexpr int mostCandles = 4000;

bool isPrice(double yuan);
/// Of rows {"day", "open", "high", "low", "close", "volume", "turnover"}. A day whose high or low lies inside
/// its open and close is stretched over them.
QList<Candle> candles(const QVariant &rows);
/// Of rows {"time", "price", "average", "volume"}, `time` in milliseconds since 1970; only those of the last
/// row's day.
QList<Minute> minutes(const QVariant &rows);
/// The minute of the day in Shanghai.
int minuteOfDay(qint64 time);
/// The day in Shanghai: 20260105; 0 for what is no time.
int dayNumber(qint64 time);

} // namespace Series
