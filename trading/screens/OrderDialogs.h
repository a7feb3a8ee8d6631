#pragma once

#include "core/util/OwnedAction.h"
#include "trading/screens/UnknownOrders.h"

#include <chrono>

class KRWindow;

/// What order entry offers once an order stands in the books.
struct OrderWays {
    /// Run at once when it is told that the order stands there.
    OwnedAction whenPlaced;
    /// "实盘炒股".
    OwnedAction leave;
    /// "继续买入", "继续卖出".
    OwnedAction goOn;
};

/// What the user is told of orders that were sent. The dialogs outlive the screen that sent them; once that
/// is gone they have no ways, and name the order.
namespace OrderDialogs {

/// Says what became of the order. A refusal is the business of its screen while that is there.
void tellOutcome(KRWindow &window, const SentOrder &sent, const OrderWays &ways);

/// Says that the outcome is unknown, looks for all unknown orders like this one in today's entrusts, and says
/// what was found. Closing it ends the search.
void tell(KRWindow &window, const OrderIntent &order, const OrderWays &ways);

/// Asks before the same order goes out once more. When the user wants it the entrusts are read once more
/// first: `again` runs when it is not among them. The other way out is to look for it.
void ask(KRWindow &window, const OrderIntent &order, const OrderWays &ways, const OwnedAction &again);

/// Looks for all unknown orders once, without a word unless one is found. Waits while a dialog is shown or an
/// order may be on its way. The other functions stop it, and start it anew for what arrives late.
void lookQuietly(KRWindow &window, std::chrono::milliseconds after);

} // namespace OrderDialogs
