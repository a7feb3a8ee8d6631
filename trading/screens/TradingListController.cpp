#include "trading/screens/TradingListController.h"

using namespace std::chrono_literals;

void TradingListController::refreshUntilAnswered(const Operation &operation)
{
    if (!operation)
        return endRefreshing();
    connect(operation.get(), &RequestOperation::finished, this, [this] { endRefreshing(); });
    endRefreshingAfter(15s);
}
