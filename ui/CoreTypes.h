#pragma once

#include "core/shell/KRBaseController.h"
#include "core/shell/KRDialog.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRSideMenu.h"
#include "core/shell/KRWindow.h"
#include "core/shell/MVNoNetView.h"
#include "core/shell/OverlayHost.h"
#include "core/shell/TZBaseTableViewController.h"
#include "core/shell/TZGuideController.h"
#include "core/shell/TZInfoAlertView.h"
#include "core/shell/TZLeftMenuController.h"
#include "core/shell/TZPlainPageController.h"
#include "core/shell/TZTradePwdAlertView.h"
#include "core/util/Amount.h"
#include "ui/ViewType.h"

// The classes that views of every area know.
struct GadgetListModelForViews {
    Q_GADGET
    ZV_VIEW_TYPE(GadgetListModel)
};
struct KRBaseControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(KRBaseController)
};
struct KRDialogForViews {
    Q_GADGET
    ZV_VIEW_TYPE(KRDialog)
};
struct KRNavigationControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(KRNavigationController)
};
struct KRSideMenuForViews {
    Q_GADGET
    ZV_VIEW_TYPE(KRSideMenu)
};
struct KRWindowForViews {
    Q_GADGET
    ZV_VIEW_TYPE(KRWindow)
};
struct MVNoNetViewForViews {
    Q_GADGET
    ZV_VIEW_TYPE_AS(MVNoNetView, MVNoNetPanel)
};
struct ObjectListModelForViews {
    Q_GADGET
    ZV_VIEW_TYPE(ObjectListModel)
};
struct OverlayHostForViews {
    Q_GADGET
    ZV_VIEW_TYPE(OverlayHost)
};
struct TZBaseTableViewControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZBaseTableViewController)
};
struct TZGuideControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZGuideController)
};
struct TZInfoAlertViewForViews {
    Q_GADGET
    ZV_VIEW_TYPE_AS(TZInfoAlertView, TZInfoAlertDialog)
};
struct TZLeftMenuControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZLeftMenuController)
};
struct TZPlainPageControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZPlainPageController)
};
struct TZTradePwdAlertViewForViews {
    Q_GADGET
    ZV_VIEW_TYPE_AS(TZTradePwdAlertView, TZTradePwdAlertDialog)
};
struct UnitTextForViews {
    Q_GADGET
    QML_FOREIGN(UnitText)
    QML_VALUE_TYPE(unitText)
};
