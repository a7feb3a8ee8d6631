#include "account/screens/TZVerifyIDController.h"

#include "account/screens/TZSetPasswordController.h"
#include "core/session/TZUserTool.h"
#include "core/util/Service.h"

namespace {
const QString idCardKey = QStringLiteral("idCard");
} // namespace

void TZVerifyIDController::setIdCard(const QString &idCard)
{
    number = idCard;
    Q_EMIT idCardChanged();
}

bool TZVerifyIDController::nextStepLit() const
{
    return Service::determineIdentityFormat(number);
}

void TZVerifyIDController::viewDidLoad()
{
    TZFormController::viewDidLoad();
    setTitle(QStringLiteral("身份验证"));
    setShowBackButton(true);
}

void TZVerifyIDController::nextBtnClick()
{
    if (isSending())
        return;
    if (Service::whetherAnEmptyString(number))
        return Service::showErrorWithMsg(QStringLiteral("请输入身份证号"));
    if (!Service::determineIdentityFormat(number))
        return Service::showErrorWithMsg(QStringLiteral("身份证格式不正确，请重新输入"));
    const auto verified = [this, sent = number](const Operation &, const QVariantMap &) {
        openSetPassword(sent);
    };
    waitFor(
        TZUserTool::updatePwdToVerifyIDWithParam({{idCardKey, number}}, Success{this, verified}, Failure{}));
}

void TZVerifyIDController::openSetPassword(const QString &verifiedNumber)
{
    auto set = std::make_unique<TZSetPasswordController>();
    set->isResetPassword = true;
    set->requestData = requestData;
    set->requestData.insert(idCardKey, verifiedNumber);
    pushNext(std::move(set));
}
