#pragma once

#include "account/screens/TZCheckCellController.h"
#include "account/screens/TZEnsurePasswordController.h"
#include "account/screens/TZLoginController.h"
#include "account/screens/TZModifyNicknameController.h"
#include "account/screens/TZNicknameController.h"
#include "account/screens/TZPasswordController.h"
#include "account/screens/TZPersonalController.h"
#include "account/screens/TZRegisterController.h"
#include "account/screens/TZRegisterFinishController.h"
#include "account/screens/TZSetPasswordController.h"
#include "account/screens/TZSmsCell.h"
#include "account/screens/TZSmsCodeController.h"
#include "account/screens/TZVerifyIDController.h"
#include "account/screens/TZVerifyPhoneController.h"
#include "ui/ViewType.h"

struct TZCheckCellControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZCheckCellController)
};
struct TZEnsurePasswordControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZEnsurePasswordController)
};
struct TZLoginControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZLoginController)
};
struct TZModifyNicknameControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZModifyNicknameController)
};
struct TZNicknameControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZNicknameController)
};
struct TZPasswordControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZPasswordController)
};
struct TZPersonalControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZPersonalController)
};
struct TZRegisterControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZRegisterController)
};
struct TZRegisterFinishControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZRegisterFinishController)
};
struct TZSetPasswordControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZSetPasswordController)
};
struct TZSmsCellForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZSmsCell)
};
struct TZSmsCodeControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZSmsCodeController)
};
struct TZVerifyIDControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZVerifyIDController)
};
struct TZVerifyPhoneControllerForViews {
    Q_GADGET
    ZV_VIEW_TYPE(TZVerifyPhoneController)
};
