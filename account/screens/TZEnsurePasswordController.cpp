#include "account/screens/TZEnsurePasswordController.h"

#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/session/NotificationNames.h"
#include "core/session/TZUserTool.h"
#include "core/shell/KRNavigationController.h"
#include "core/util/Service.h"

namespace {
const QString passwordKey = QStringLiteral("password");
const QString done = QStringLiteral("设置成功");
} // namespace

TZEnsurePasswordController::~TZEnsurePasswordController()
{
    prePassword.fill(u'\0');
}

void TZEnsurePasswordController::viewDidLoad()
{
    TZPasswordController::viewDidLoad();
    setTitle(isResetPassword ? QStringLiteral("确认重置密码") : QStringLiteral("设置交易密码"));
    setShowBackButton(true);
}

void TZEnsurePasswordController::inputCompleted()
{
    if (isSending())
        return;
    if (input() != prePassword) {
        clearInput();
        return Service::showErrorWithMsg(QStringLiteral("两次密码输入不一致，请重新输入"));
    }
    if (isResetPassword)
        resetPassword();
    else
        setPassword();
}

void TZEnsurePasswordController::resetPassword()
{
    QVariantMap param = requestData;
    param.insert(passwordKey, input());
    const auto updated = [this](const Operation &, const QVariantMap &) {
        Platform::current().notifications.post(NotificationNames::refreshAccount);
        Service::showSuccessWithMsg(done);
        navigationController()->popToRoot();
    };
    waitFor(TZUserTool::updatePwdWithParam(param, Success{this, updated}, Failure{}));
}

void TZEnsurePasswordController::setPassword()
{
    const auto set = [this](const Operation &, const QVariantMap &) {
        Service::showSuccessWithMsg(done);
        navigationController()->dismiss();
    };
    waitFor(TZUserTool::setTradePwdWithParam({{passwordKey, input()}}, Success{this, set}, Failure{}));
}
