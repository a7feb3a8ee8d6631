#pragma once

#include "core/net/Callbacks.h"
#include "trading/screens/OrderIntent.h"

#include <optional>

/// The signed-in user's orders of today whose outcome is not known: no answer came, or none that tells. Kept
/// in the settings, so that they outlive their screen and the process; they go once the outcome is known,
/// with the day (of the exchange's time zone), and with signing out.
class UnknownOrders {
public:
    UnknownOrders() = delete;

    static inline const QString settingsKey = QStringLiteral("UnknownOrders");

    /// Sends the order, with the password when it is not empty. It is written down before it is sent, and
    /// crossed out when an answer tells its outcome or nothing was sent, whether or not the owners of the
    /// callbacks are still there to hear of it. `intent` gets the time and what stands in the books already.
    static Operation send(OrderIntent &intent, const QString &password, Success success, Failure failure);

    /// The unknown order that sending `order` would repeat, the latest of them.
    static std::optional<OrderIntent> find(const OrderIntent &order);
    /// The outcome is known: the entrust with this identifier, or none. An entrust also ends the doubt about
    /// earlier orders of the same kind: the user was asked about them before.
    static void settle(const OrderIntent &order, const QString &id = {});
};
