#include "account/screens/TZVerifyPhoneController.h"

#include "account/screens/TZVerifyIDController.h"
#include "core/session/TZUserModel.h"
#include "core/session/TZUserTool.h"
#include "core/util/Service.h"

QString TZVerifyPhoneController::headerText() const
{
    const QString cell = TZUserModel::stored().cell;
    if (sent)
        return sentTo(cell);
    return QStringLiteral("短信验证码将发送至%1").arg(Service::encryptionPhoneNumber(cell));
}

void TZVerifyPhoneController::viewDidLoad()
{
    TZSmsCodeController::viewDidLoad();
    setTitle(QStringLiteral("手机验证"));
    clickTimeBtn();
}

void TZVerifyPhoneController::sendSms(const OwnedAction &complete)
{
    TZSmsCodeController::sendSms({this, [this, complete] {
                                      sent = true;
                                      Q_EMIT headerTextChanged();
                                      complete();
                                  }});
}

Operation TZVerifyPhoneController::askForCode(Success success, Failure andError)
{
    return TZUserTool::updatePwdToSendSMSWithParam({}, std::move(success), std::move(andError));
}

void TZVerifyPhoneController::clickNextStepBtn()
{
    if (isSending() || !checkInput())
        return;
    const QVariantMap param = verification();
    waitFor(TZUserTool::updatePwdToVerifyCodeWithParam(
        param,
        Success{this, [this, param](const Operation &, const QVariantMap &) { openIdentityCheck(param); }},
        Failure{}));
}

void TZVerifyPhoneController::openIdentityCheck(const QVariantMap &verified)
{
    auto check = std::make_unique<TZVerifyIDController>();
    check->requestData = verified;
    pushNext(std::move(check));
}
