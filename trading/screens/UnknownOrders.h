#pragma once

#include "core/net/Callbacks.h"
#include "trading/screens/OrderIntent.h"

/// An entrust that an unknown order became.
struct FoundOrder {
    OrderIntent order;
    TZEntrustsTodayModel entrust;
    /// The service's clock says that the entrust came after, and there is no other that it may be.
    bool certain = false;
};

/// The signed-in user's orders whose outcome is not known: no answer came, or none that tells. Kept in the
/// settings, so that they outlive their screen and the process; each goes once its own outcome is known, and
/// all with signing out.
class UnknownOrders {
public:
    UnknownOrders() = delete;

    static inline const QString settingsKey = QStringLiteral("UnknownOrders");

    using Lost = OwnedCallback<OrderIntent>;
    /// Sends the order, with the password when it is not empty. It is written down before it is sent, and
    /// crossed out when an answer tells its outcome or nothing was sent, whether or not the owners of the
    /// callbacks are still there to hear of it. `answered` gets every answer; `lost` gets the order, after
    /// that, when nothing says whether it was accepted. An answer that accepts it without an identifier
    /// leaves it unknown, but is not `lost`.
    static Operation send(OrderIntent order, const QString &password, Success answered, Lost lost);

    /// All of them, the oldest first.
    static QList<OrderIntent> all();
    /// Those that sending `order` would repeat.
    static QList<OrderIntent> like(const OrderIntent &order);

    /// Compares unknown orders with all of today's entrusts, crosses out those that were found, and says what
    /// they became. What may come of any of them, but is more than there are of them, is told too. One that
    /// is missing long after it was sent never arrived, and is crossed out as well.
    static QList<FoundOrder> settle(const QList<OrderIntent> &sought,
                                    const QList<TZEntrustsTodayModel> &entrusts);
};
