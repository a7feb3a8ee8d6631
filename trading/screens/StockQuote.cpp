#include "trading/screens/StockQuote.h"

#include "core/util/Service.h"
#include "core/util/Text.h"
#include "trading/charts/FigureTexts.h"
#include "trading/charts/Series.h"

#include <algorithm>
#include <cmath>

namespace {
double priceOf(const QVariant &value)
{
    const double yuan = doubleValue(value);
    return Series::isPrice(yuan) ? yuan : 0;
}

bool isSame(double price, double other)
{
    return other > 0 && std::abs(price - other) < 0.005;
}
} // namespace

void StockQuote::take(const QVariantMap &data)
{
    const auto readPrice = [&data](const QString &key, double &field) {
        if (data.contains(key))
            field = priceOf(data.value(key));
    };
    const auto readFigure = [&data](const QString &key, double &field) {
        if (!Service::whetherAnEmptyString(data.value(key)))
            field = std::max(doubleValue(data.value(key)), 0.0);
    };
    readPrice(QStringLiteral("previousClose"), reference.previousClose);
    readPrice(QStringLiteral("upperLimit"), reference.upperLimit);
    readPrice(QStringLiteral("lowerLimit"), reference.lowerLimit);
    readPrice(QStringLiteral("open"), open);
    readPrice(QStringLiteral("high"), high);
    readPrice(QStringLiteral("low"), low);
    readFigure(QStringLiteral("volume"), volume);
    readFigure(QStringLiteral("turnover"), turnover);
    if (data.contains(QStringLiteral("suspended")))
        suspended = boolValue(data.value(QStringLiteral("suspended")));
    change = textForm(data.value(QStringLiteral("change"), change));
    changeRate = textForm(data.value(QStringLiteral("changeRate"), changeRate));
    const double match = priceOf(data.value(QStringLiteral("match")));
    const double current = match > 0 ? match : priceOf(data.value(QStringLiteral("currentPrice")));
    if (current > 0)
        latest = current;
    // A quote brings no highs and lows.
    if (match > 0 && high > 0)
        high = std::max(high, match);
    if (match > 0 && low > 0)
        low = std::min(low, match);
}

void StockQuote::setPrice(const QString &yuan)
{
    latest = priceOf(yuan);
}

QString StockQuote::priceText() const
{
    return FigureTexts::price(latest);
}

QString StockQuote::changeText() const
{
    const double base = reference.previousClose;
    if (latest > 0 && base > 0)
        return FigureTexts::change(latest - base) + QStringLiteral("  ") +
               FigureTexts::rate(latest - base, base);
    return Service::whetherAnEmptyString(changeRate) ? change
                                                     : QStringLiteral("%1  %2%").arg(change, changeRate);
}

int StockQuote::trend() const
{
    if (latest > 0 && reference.previousClose > 0)
        return trendOf(latest, reference.previousClose);
    const double difference = doubleValue(change);
    return (difference > 0) - (difference < 0);
}

int StockQuote::tagTrend() const
{
    if (suspended)
        return 0;
    return isSame(latest, reference.upperLimit) ? 1 : isSame(latest, reference.lowerLimit) ? -1 : 0;
}

QString StockQuote::tag() const
{
    if (suspended)
        return QStringLiteral("停牌");
    const int limit = tagTrend();
    return limit > 0 ? QStringLiteral("涨停") : limit < 0 ? QStringLiteral("跌停") : QString();
}

QList<StockFigure> StockQuote::figures() const
{
    const auto price = [this](const QString &label, double yuan) {
        return StockFigure{label, FigureTexts::price(yuan), trendOf(yuan, reference.previousClose)};
    };
    return {
        price(QStringLiteral("今开"), open),
        price(QStringLiteral("最高"), high),
        {QStringLiteral("成交量"), volume < 0 ? FigureTexts::none : FigureTexts::volume(volume), 0},
        price(QStringLiteral("昨收"), reference.previousClose),
        price(QStringLiteral("最低"), low),
        {QStringLiteral("成交额"), turnover < 0 ? FigureTexts::none : FigureTexts::money(turnover), 0},
    };
}
