#pragma once

#include "core/util/OwnedAction.h"
#include "trading/screens/OrderIntent.h"

class KRWindow;

/// What order entry offers once an order stands in the books.
struct OrderWays {
    /// Run at once when the order is found.
    OwnedAction placed;
    /// "实盘炒股".
    OwnedAction leave;
    /// "继续买入", "继续卖出".
    OwnedAction goOn;
};

/// What the user is told of orders whose outcome is unknown. The dialogs outlive the screen that shows them.
namespace UnknownOrderDialogs {

/// Says that the outcome is unknown, looks for the order in today's entrusts and says what was found; the
/// order that was found is settled. Closing it ends the search.
void tell(KRWindow &window, const OrderIntent &order, const OrderWays &ways);

/// Asks before the same order goes out once more: `again` when the user wants it. The other way out is to
/// look for `order` first.
void ask(KRWindow &window, const OrderIntent &order, const OrderWays &ways, const OwnedAction &again);

} // namespace UnknownOrderDialogs
