#include "account/screens/TZSetPasswordController.h"

#include "account/screens/TZEnsurePasswordController.h"
#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/session/NotificationNames.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRWindow.h"
#include "core/shell/TZInfoAlertView.h"

QString TZSetPasswordController::heading() const
{
    return isResetPassword ? QStringLiteral("请输入新的交易密码") : QStringLiteral("请设置交易密码");
}

QString TZSetPasswordController::caption() const
{
    return QStringLiteral("六位数字，委托下单和提现时使用");
}

void TZSetPasswordController::viewDidLoad()
{
    TZPasswordController::viewDidLoad();
    setTitle(isResetPassword ? QStringLiteral("重置密码") : QStringLiteral("输入交易密码"));
    createNavLeftItemWithTitle(
        {}, isFirstShow ? QStringLiteral("common_close_gray") : QStringLiteral("common_back_gray"), {}, {});
    Platform::current().notifications.post(NotificationNames::refreshAccount);
}

void TZSetPasswordController::viewWillAppear()
{
    TZPasswordController::viewWillAppear();
    // Who comes back from the second entry starts again.
    clearInput();
}

void TZSetPasswordController::leftItemClick()
{
    window()->show(std::make_unique<TZInfoAlertView>(
        TZInfoAlertViewModel{QStringLiteral("退出操作"), QStringLiteral("是否放弃本次操作"),
                             QStringLiteral("取消"), QStringLiteral("退出")},
        OwnedAction(), OwnedAction(this, [this] { leaveFlow(); })));
}

void TZSetPasswordController::leaveFlow()
{
    if (isFirstShow)
        navigationController()->dismiss();
    else
        navigationController()->popToRoot();
}

void TZSetPasswordController::inputCompleted()
{
    auto ensure = std::make_unique<TZEnsurePasswordController>();
    ensure->prePassword = input();
    ensure->isResetPassword = isResetPassword;
    ensure->isFirstShow = isFirstShow;
    ensure->requestData = requestData;
    pushNext(std::move(ensure));
}
