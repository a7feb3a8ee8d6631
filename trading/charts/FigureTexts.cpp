#include "trading/charts/FigureTexts.h"

#include "trading/charts/Series.h"

#include <cmath>

namespace {
constexpr double tenThousand = 1e4;
constexpr double hundredMillion = 1e8;

QString twoDecimals(double value)
{
    // Rounded as the decimal figure that it stands for: 1.005 is 1.01. No "-0.00".
    const double rounded = std::round(value * 100 * (1 + 1e-12)) / 100;
    return QString::number(rounded == 0 ? 0 : rounded, 'f', 2);
}

QString withSign(double value, const QString &unit)
{
    const QString text = twoDecimals(value) + unit;
    return text.startsWith(u'-') || value < 0.005 ? text : u'+' + text;
}

/// `ones` below ten thousand, else in units that Chinese counts in.
QString counted(double value, const QString &ones, const QString &unit)
{
    if (value < tenThousand)
        return ones + unit;
    if (value < hundredMillion)
        return twoDecimals(value / tenThousand) + QStringLiteral("万") + unit;
    return twoDecimals(value / hundredMillion) + QStringLiteral("亿") + unit;
}
} // namespace

QString FigureTexts::price(double yuan)
{
    return Series::isPrice(yuan) ? twoDecimals(yuan) : none;
}

QString FigureTexts::change(double yuan)
{
    return withSign(yuan, {});
}

QString FigureTexts::rate(double difference, double base)
{
    return withSign(difference / base * 100, QStringLiteral("%"));
}

QString FigureTexts::volume(double shares)
{
    const double lots = shares / 100;
    return counted(lots, QString::number(std::floor(lots), 'f', 0), QStringLiteral("手"));
}

QString FigureTexts::money(double yuan)
{
    return yuan < tenThousand ? twoDecimals(yuan) + QStringLiteral("元") : counted(yuan, {}, {});
}

QString FigureTexts::day(int day)
{
    return QStringLiteral("%1-%2-%3")
        .arg(day / 10'000, 4, 10, QLatin1Char('0'))
        .arg(day / 100 % 100, 2, 10, QLatin1Char('0'))
        .arg(day % 100, 2, 10, QLatin1Char('0'));
}

QString FigureTexts::clock(int minute)
{
    return QStringLiteral("%1:%2").arg(minute / 60).arg(minute % 60, 2, 10, QLatin1Char('0'));
}
