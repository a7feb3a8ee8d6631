#pragma once

#include "core/net/Callbacks.h"
#include "trading/screens/OrderIntent.h"

/// An entrust that an unknown order became, or may have become.
struct FoundOrder {
    OrderIntent order;
    TZEntrustsTodayModel entrust;
    /// The service's clock says that the entrust came after, and there is no other that it may be.
    bool certain = false;
    /// An earlier search has told it as one that the order may have become.
    bool toldBefore = false;
};

/// What became of a submission.
enum class OrderOutcome {
    Placed,
    /// Accepted, without the identifier that tells which entrust it is.
    PlacedUnnamed,
    /// Refused, or never sent.
    NotPlaced,
    /// Nothing says whether it was accepted.
    Unknown,
};

struct SentOrder {
    OrderIntent order;
    OrderOutcome outcome;
    /// Empty when none came.
    QVariantMap answer;
};

/// The signed-in user's orders whose outcome is not known: no answer came, or none that tells. Kept in the
/// settings, so that they outlive their screen and, where the settings can be written, the process; each goes
/// once its own outcome is known, and all with signing out.
class UnknownOrders {
public:
    UnknownOrders() = delete;

    static inline const QString settingsKey = QStringLiteral("UnknownOrders");

    using Told = OwnedCallback<SentOrder>;
    /// Sends the order, with the password when it is not empty. It is written down before it is sent, and
    /// crossed out once it was placed or certainly was not; an accepted order is the last that needed the
    /// trade password. That is so whether or not the owner of `told` is still there. `told` hears the outcome
    /// once, unless its user has signed out or a search has found the order meanwhile.
    static Operation send(OrderIntent order, const QString &password, Told told);

    /// All of them, the oldest first.
    static QList<OrderIntent> all();
    /// Those that sending `order` would repeat.
    static QList<OrderIntent> like(const OrderIntent &order);

    /// Compares unknown orders with all of today's entrusts, crosses out those that were certainly found, and
    /// says what they became. What may come of any of them, but is not certain or more than there are of
    /// them, is told too. One that is missing long after it was sent never arrived, and is crossed out as
    /// well.
    static QList<FoundOrder> settle(const QList<OrderIntent> &sought,
                                    const QList<TZEntrustsTodayModel> &entrusts);
};
