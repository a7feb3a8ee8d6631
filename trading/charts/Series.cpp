#include "trading/charts/Series.h"

#include "core/util/Text.h"

#include <QDateTime>
#include <QVariantMap>
#include <algorithm>

namespace {
constexpr qint64 minuteLength = 60'000;
constexpr qint64 dayLength = 24 * 60 * minuteLength;
// China has had no summer time since 1991.
constexpr qint64 shanghai = 8 * 60 * minuteLength;
constexpr double largestVolume = 1e15;
/// The end of the year 9999.
constexpr qint64 latestTime = 253'402'271'999'999;

double quantity(const QVariant &value)
{
    return std::clamp(doubleValue(value), 0.0, largestVolume);
}

qint64 dayOf(qint64 time)
{
    return (time + shanghai) / dayLength;
}
} // namespace

bool Series::isPrice(double yuan)
{
    return yuan > 0 && yuan <= largestPrice;
}

QList<Candle> Series::candles(const QVariant &rows)
{
    QMap<int, Candle> candles;
    for (const QVariant &row : rows.toList()) {
        const QVariantMap map = row.toMap();
        const auto figure = [&map](const char *key) { return doubleValue(map.value(QLatin1String(key))); };
        Candle candle{static_cast<int>(
                          std::clamp<qint64>(integerValue(map.value(QStringLiteral("day"))), 0, 99'999'999)),
                      figure("open"),
                      figure("high"),
                      figure("low"),
                      figure("close"),
                      quantity(map.value(QStringLiteral("volume"))),
                      quantity(map.value(QStringLiteral("turnover")))};
        const bool priced =
            isPrice(candle.open) && isPrice(candle.high) && isPrice(candle.low) && isPrice(candle.close);
        if (candle.day == 0 || !priced)
            continue;
        candle.high = std::max({candle.high, candle.open, candle.close});
        candle.low = std::min({candle.low, candle.open, candle.close});
        candles.insert(candle.day, candle);
    }
    const QList<Candle> days = candles.values();
    return days.mid(std::max<qsizetype>(0, days.size() - mostCandles));
}

QList<Minute> Series::minutes(const QVariant &rows)
{
    QMap<qint64, Minute> minutes;
    for (const QVariant &row : rows.toList()) {
        const QVariantMap map = row.toMap();
        const qint64 time = integerValue(map.value(QStringLiteral("time")));
        const double price = doubleValue(map.value(QStringLiteral("price")));
        const double average = doubleValue(map.value(QStringLiteral("average")));
        if (time > 0 && time <= latestTime && isPrice(price))
            minutes.insert(time / minuteLength, {minuteOfDay(time), price, isPrice(average) ? average : 0,
                                                 quantity(map.value(QStringLiteral("volume")))});
    }
    if (minutes.isEmpty())
        return {};
    const qint64 day = dayOf(minutes.lastKey() * minuteLength);
    minutes.removeIf([day](const auto &row) { return dayOf(row.key() * minuteLength) != day; });
    return minutes.values();
}

int Series::minuteOfDay(qint64 time)
{
    return static_cast<int>((time + shanghai) % dayLength / minuteLength);
}

int Series::dayNumber(qint64 time)
{
    if (time <= 0 || time > latestTime)
        return 0;
    const QDate date = QDateTime::fromMSecsSinceEpoch(time + shanghai, Qt::UTC).date();
    return date.year() * 10'000 + date.month() * 100 + date.day();
}
