#pragma once

#include "home/screens/AmountsSwitch.h"
#include "home/screens/TZHomeHeaderView.h"
#include "home/screens/TZHomeViewController.h"
#include "home/screens/TZMessageDetailController.h"
#include "home/screens/TZMoreViewController.h"
#include "home/screens/TZMyAccountController.h"
#include "ui/ViewType.h"

// The classes that this area's views know.
struct AmountsSwitchForViews {
    Q_GADGET
    ZV_VIEW_TYPE(AmountsSwitch)
};
struct TZHomeHeaderViewForViews {
    Q_GADGET
    QML_FOREIGN(TZHomeHeaderView)
    QML_VALUE_TYPE(homeHeader)
};
struct TZHomeViewControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZHomeViewController)
};
struct TZMessageDetailControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZMessageDetailController)
};
struct TZMoreViewControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZMoreViewController)
};
struct TZMyAccountControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZMyAccountController)
};
