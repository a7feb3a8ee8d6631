#pragma once

#include "trading/screens/TZBuyAndSellController.h"
#include "trading/screens/TZHandicapView.h"
#include "trading/screens/TZSelectStockController.h"
#include "ui/ViewType.h"

// The classes that this area's views know.
struct TZBuyAndSellControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZBuyAndSellController)
};
struct TZHandicapViewForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZHandicapView)
};
struct TZSelectStockControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZSelectStockController)
};
