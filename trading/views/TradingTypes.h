#pragma once

#include "trading/screens/TZSelectStockController.h"
#include "ui/ViewType.h"

// The classes that this area's views know.
struct TZSelectStockControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZSelectStockController)
};
