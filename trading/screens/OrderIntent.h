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
    /// The time on the service's clock of the latest quote before, in its own unit; 0 when it tells none.
    qint64 quotedAt = 0;
    /// The identifiers of entrusts of the same kind that stood before.
    QStringList earlier;

    /// The fields of the request.
    QVariantMap parameters() const;
    /// Whether sending both would be the same order twice.
    bool isSameOrder(const OrderIntent &other) const;
    /// Whether `entrust` is an order like this one.
    bool isLike(const TZEntrustsTodayModel &entrust) const;
    /// Whether `entrust` came of this very intent: like it, and not there before.
    bool became(const TZEntrustsTodayModel &entrust) const;
    /// As a person reads it: "买入 海天传媒(600001)", a line break, "12.34元 × 800股".
    QString text() const;

    QVariantMap toMap() const;
    static OrderIntent fromMap(const QVariantMap &map);
};
