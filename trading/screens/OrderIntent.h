#pragma once

#include "trading/api/TZEntrustsTodayModel.h"
#include "trading/screens/OrderEntryRules.h"

#include <QVariantMap>

/// An order that the user wants, and what was known when it was sent. Price in yuan and shares as typed.
struct OrderIntent {
    OrderSide side = OrderSide::Buy;
    QString stockCode;
    QString stockName;
    QString price;
    QString shares;

    /// Milliseconds since 1970 on this device.
    qint64 sentAt = 0;
    /// The service's clock in the latest quote before: the `serviceTime` of the latest that told it, else
    /// when the latest was answered; 0 when nothing tells.
    qint64 quotedAt = 0;
    /// The identifiers of entrusts of the same kind that stood before.
    QStringList earlier;
    /// The service said that it accepted the order, but not which entrust it is.
    bool accepted = false;
    /// The identifiers of entrusts that were told as those that it may have become.
    QStringList possible;

    /// The clocks of the service that give quotes and entrusts their times differ by no more, in
    /// milliseconds.
    static constexpr qint64 clockTolerance = 60'000;
    /// Milliseconds since 1970 on the service's clock; 0 for what is not such a stamp.
    static qint64 serviceTime(const QVariant &stamp);

    /// The fields of the request.
    QVariantMap parameters() const;
    /// Whether sending both would be the same order twice.
    bool isSameOrder(const OrderIntent &other) const;
    /// Whether both are the same submission of it.
    bool isSameIntent(const OrderIntent &other) const;
    /// Whether `entrust` is an order like this one.
    bool isLike(const TZEntrustsTodayModel &entrust) const;
    /// Whether `entrust` may have come of this very intent: like it, and not known to be older.
    bool mayHaveBecome(const TZEntrustsTodayModel &entrust) const;
    /// As a person reads it: "买入 海天传媒(600001)", a line break, "12.34元 × 800股".
    QString text() const;

    QVariantMap toMap() const;
    static OrderIntent fromMap(const QVariantMap &map);
};
