#include "account/screens/TZSmsCodeController.h"

#include "account/screens/TypedText.h"
#include "core/net/ToolPolicy.h"
#include "core/session/TZUserTool.h"
#include "core/util/Service.h"
#include "core/util/Text.h"

using namespace std::chrono_literals;

namespace {
constexpr qsizetype codeLength = 6;
const QString bizCodeKey = QStringLiteral("bizCode");
const QString cellKey = QStringLiteral("cell");
const QString wrongNumber = QStringLiteral("手机号格式不正确，请重新输入");
} // namespace

QString TZSmsCodeController::bizCodeOf(const QVariantMap &answer)
{
    const QVariant code = answer.value(bizCodeKey);
    return textForm(Service::whetherAnEmptyString(code)
                        ? answer.value(QStringLiteral("data")).toMap().value(bizCodeKey)
                        : code);
}

QString TZSmsCodeController::headerText() const
{
    return QStringLiteral("已发送短信验证码至%1，请在输入框内填写验证码")
        .arg(Service::encryptionPhoneNumber(cell()));
}

void TZSmsCodeController::viewDidLoad()
{
    TZSignInController::viewDidLoad();
    setShowBackButton(true);
    sms.justBeginTimer();
}

void TZSmsCodeController::sendSms(const OwnedAction &complete)
{
    using TimeButton = TZSmsCell::TimeButton;
    sms.changeTimeButtonStyleWithIndex(TimeButton::Waiting, sms.title());
    const auto makeReady = [this] { sms.changeTimeButtonStyleWithIndex(TimeButton::Ready, sms.title()); };
    if (!Service::determineThePhoneNumberFormat(cell())) {
        makeReady();
        return Service::showErrorWithMsg(wrongNumber);
    }
    const Operation start =
        TZUserTool::checkCellWithCell(cell(),
                                      Success{this,
                                              [this, complete](const Operation &, const QVariantMap &answer) {
                                                  if (!ToolPolicy::succeeded(answer))
                                                      return;
                                                  const QString renewed = bizCodeOf(answer);
                                                  if (!Service::whetherAnEmptyString(renewed))
                                                      requestData.insert(bizCodeKey, renewed);
                                                  complete();
                                              }},
                                      Failure{});
    connect(start.get(), &RequestOperation::finished, this, [this, makeReady] {
        if (!sms.isCounting())
            makeReady();
    });
}

void TZSmsCodeController::clickTimeBtn()
{
    if (sms.enabled())
        sendSms({this, [this] { sms.justBeginTimer(); }});
}

void TZSmsCodeController::textFiledEditChanged(const QString &text)
{
    codeText = firstUnits(text, codeLength);
    // Also when nothing changed: the field has to drop what was just typed into it.
    Q_EMIT codeChanged();
    delayToChangeBtnStyle();
}

void TZSmsCodeController::delayToChangeBtnStyle()
{
    styleDelay.startOnce(100ms, [this] {
        lit = isComplete();
        Q_EMIT nextStepLitChanged();
    });
}

bool TZSmsCodeController::isComplete() const
{
    return Service::removeSpacesFromString(codeText).size() == codeLength;
}

bool TZSmsCodeController::checkInput() const
{
    const auto fail = [](const QString &problem) {
        Service::showErrorWithMsg(problem);
        return false;
    };
    if (Service::whetherAnEmptyString(cell()))
        return fail(QStringLiteral("请输入手机号"));
    if (Service::whetherAnEmptyString(codeText))
        return fail(QStringLiteral("请输入手机验证码"));
    if (!Service::determineThePhoneNumberFormat(cell()))
        return fail(wrongNumber);
    if (!Service::isRightFormatPhoneCaptcha(codeText))
        return fail(QStringLiteral("手机验证码格式不正确，请重新输入"));
    if (Service::whetherAnEmptyString(bizCode()))
        return fail(QStringLiteral("交易码异常"));
    return true;
}

void TZSmsCodeController::verify(const QVariantMap &extra, std::function<void()> verified)
{
    if (verifying)
        return;
    verifying = true;
    QVariantMap param = extra;
    param.insert(bizCodeKey, bizCode());
    param.insert(QStringLiteral("userInput"), codeText);
    const Operation operation = TZUserTool::verifyCodeWithParam(
        param,
        Success{this,
                [verified = std::move(verified)](const Operation &, const QVariantMap &) { verified(); }},
        Failure{});
    connect(operation.get(), &RequestOperation::finished, this, [this] { verifying = false; });
}

QString TZSmsCodeController::cell() const
{
    return requestData.value(cellKey).toString();
}

QString TZSmsCodeController::bizCode() const
{
    return requestData.value(bizCodeKey).toString();
}
