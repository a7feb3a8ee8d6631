#include "trading/screens/OrderIntent.h"

#include "core/util/Text.h"
#include "trading/screens/TradeTexts.h"

#include <algorithm>
#include <cmath>

namespace {
const QString sideKey = QStringLiteral("side");
const QString codeKey = QStringLiteral("stockCode");
const QString nameKey = QStringLiteral("stockName");
const QString priceKey = QStringLiteral("entrustPrice");
const QString sharesKey = QStringLiteral("entrustShares");
const QString sentKey = QStringLiteral("sentAt");
const QString quotedKey = QStringLiteral("quotedAt");
const QString earlierKey = QStringLiteral("earlier");
const QString acceptedKey = QStringLiteral("accepted");
const QString possibleKey = QStringLiteral("possible");

/// The service writes "12.30" for a typed "12.3".
bool isSamePrice(const QString &one, const QString &other)
{
    return std::abs(doubleValue(one) - doubleValue(other)) < 0.0005;
}
} // namespace

qint64 OrderIntent::serviceTime(const QVariant &stamp)
{
    // Other units and written dates begin with digits too; read as milliseconds they would be long ago.
    constexpr int digits = 13;
    const QString text = textForm(stamp);
    const bool isStamp = text.size() == digits && std::all_of(text.begin(), text.end(), [](QChar each) {
                             return each >= u'0' && each <= u'9';
                         });
    return isStamp ? integerValue(text) : 0;
}

QVariantMap OrderIntent::parameters() const
{
    return {{codeKey, stockCode}, {sharesKey, shares}, {priceKey, price}};
}

bool OrderIntent::isSameOrder(const OrderIntent &other) const
{
    return side == other.side && stockCode == other.stockCode && isSamePrice(price, other.price) &&
           integerValue(shares) == integerValue(other.shares);
}

bool OrderIntent::isSameIntent(const OrderIntent &other) const
{
    return isSameOrder(other) && sentAt == other.sentAt;
}

bool OrderIntent::isLike(const TZEntrustsTodayModel &entrust) const
{
    return TradeTexts::isSell(entrust.type) == (side == OrderSide::Sell) && stockCode == entrust.stockCode &&
           isSamePrice(price, entrust.entrustPrice) &&
           integerValue(shares) == integerValue(entrust.entrustShares);
}

bool OrderIntent::mayHaveBecome(const TZEntrustsTodayModel &entrust) const
{
    const qint64 createdAt = serviceTime(entrust.createdAt);
    const bool isOlder = quotedAt > 0 && createdAt > 0 && createdAt < quotedAt - clockTolerance;
    return isLike(entrust) && !isOlder && !earlier.contains(entrust.id);
}

QString OrderIntent::text() const
{
    return QStringLiteral("%1 %2\n%3元 × %4股")
        .arg(OrderTexts::of(side).title, TradeTexts::stock(stockName, stockCode), price, shares);
}

QVariantMap OrderIntent::toMap() const
{
    return {{sideKey, static_cast<int>(side)},
            {codeKey, stockCode},
            {nameKey, stockName},
            {priceKey, price},
            {sharesKey, shares},
            {sentKey, sentAt},
            {quotedKey, quotedAt},
            {earlierKey, earlier},
            {acceptedKey, accepted},
            {possibleKey, possible}};
}

OrderIntent OrderIntent::fromMap(const QVariantMap &map)
{
    return {integerValue(map.value(sideKey)) == 0 ? OrderSide::Buy : OrderSide::Sell,
            textForm(map.value(codeKey)),
            textForm(map.value(nameKey)),
            textForm(map.value(priceKey)),
            textForm(map.value(sharesKey)),
            integerValue(map.value(sentKey)),
            integerValue(map.value(quotedKey)),
            map.value(earlierKey).toStringList(),
            boolValue(map.value(acceptedKey)),
            map.value(possibleKey).toStringList()};
}
