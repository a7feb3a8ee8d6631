#include "account/screens/TZSignInCodeController.h"

#include "core/session/TZUserTool.h"
#include "core/shell/KRNavigationController.h"
#include "core/util/Service.h"

namespace {
const QString wrongNumber = QStringLiteral("手机号格式不正确，请重新输入");
} // namespace

void TZSignInCodeController::viewDidLoad()
{
    TZSmsCodeController::viewDidLoad();
    // The entry has had a code sent.
    smsCell()->justBeginTimer();
}

void TZSignInCodeController::viewDidDisappear()
{
    TZSmsCodeController::viewDidDisappear();
    if (!navigationController()->contains(this))
        attempt.reset();
}

void TZSignInCodeController::sendSms(const OwnedAction &complete)
{
    if (!Service::determineThePhoneNumberFormat(cell()))
        return Service::showErrorWithMsg(wrongNumber);
    TZSmsCodeController::sendSms(complete);
}

Operation TZSignInCodeController::askForCode(Success success, Failure andError)
{
    return TZUserTool::checkCellWithCell(cell(), std::move(success), std::move(andError));
}

QString TZSignInCodeController::inputProblem() const
{
    if (Service::whetherAnEmptyString(cell()))
        return QStringLiteral("请输入手机号");
    if (!Service::whetherAnEmptyString(code()) && !Service::determineThePhoneNumberFormat(cell()))
        return wrongNumber;
    return TZSmsCodeController::inputProblem();
}

void TZSignInCodeController::verify(const QVariantMap &extra, std::function<void()> verified)
{
    if (isSending())
        return;
    QVariantMap param = verification();
    param.insert(extra);
    attempt = std::make_unique<QObject>();
    waitFor(TZUserTool::verifyCodeWithParam(
        param,
        Success{attempt.get(),
                [verified = std::move(verified)](const Operation &, const QVariantMap &) {
                    if (!Service::isLogin())
                        return Service::showLoadFailView();
                    verified();
                }},
        Failure{}));
}

QString TZSignInCodeController::cell() const
{
    return requestData.value(QStringLiteral("cell")).toString();
}
