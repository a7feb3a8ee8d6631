#pragma once

#include "account/screens/TZCheckCellController.h"
#include "account/screens/TZLoginController.h"
#include "account/screens/TZRegisterController.h"
#include "account/screens/TZRegisterFinishController.h"
#include "account/screens/TZSmsCell.h"
#include "account/screens/TZSmsCodeController.h"
#include "ui/ViewType.h"

struct TZCheckCellControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZCheckCellController)
};
struct TZSmsCodeControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZSmsCodeController)
};
struct TZLoginControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZLoginController)
};
struct TZRegisterControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZRegisterController)
};
struct TZRegisterFinishControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZRegisterFinishController)
};
struct TZSmsCellForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZSmsCell)
};
