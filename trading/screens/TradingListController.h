#pragma once

#include "core/net/Callbacks.h"
#include "core/shell/TZBaseTableViewController.h"

/// A list that is read from the service whole.
class TradingListController : public TZBaseTableViewController {
    Q_OBJECT
protected:
    /// Ends the refresh when the request is over, whatever came of it, and after 15 seconds at the latest. A
    /// null operation (nothing was sent) ends it at once.
    void refreshUntilAnswered(const Operation &operation);
};
