#include "account/screens/TZSmsCodeController.h"

#include "account/screens/TypedText.h"
#include "core/net/ToolPolicy.h"
#include "core/util/Service.h"
#include "core/util/Text.h"

using namespace std::chrono_literals;

namespace {
constexpr qsizetype codeLength = 6;
const QString bizCodeKey = QStringLiteral("bizCode");
} // namespace

QString TZSmsCodeController::bizCodeOf(const QVariantMap &answer)
{
    const QVariant code = answer.value(bizCodeKey);
    return textForm(Service::whetherAnEmptyString(code)
                        ? answer.value(QStringLiteral("data")).toMap().value(bizCodeKey)
                        : code);
}

bool TZSmsCodeController::wasSent(const QVariantMap &answer)
{
    const bool says = !Service::whetherAnEmptyString(answer.value(QStringLiteral("success")));
    return says ? ToolPolicy::succeeded(answer) : !Service::whetherAnEmptyString(bizCodeOf(answer));
}

void TZSmsCodeController::sayIfSilent(const QVariantMap &answer)
{
    if (Service::whetherAnEmptyString(ToolPolicy::message(answer)))
        Service::showErrorWithMsg(QStringLiteral("交易码异常"));
}

QString TZSmsCodeController::sentTo(const QString &cell)
{
    return QStringLiteral("已发送短信验证码至%1，请在输入框内填写验证码")
        .arg(Service::encryptionPhoneNumber(cell));
}

void TZSmsCodeController::viewDidLoad()
{
    TZFormController::viewDidLoad();
    setShowBackButton(true);
}

void TZSmsCodeController::sendSms(const OwnedAction &complete)
{
    using TimeButton = TZSmsCell::TimeButton;
    sms.changeTimeButtonStyleWithIndex(TimeButton::Waiting, sms.title());
    const auto sent = [this, complete](const Operation &, const QVariantMap &answer) {
        if (!wasSent(answer))
            return sayIfSilent(answer);
        const QString renewed = bizCodeOf(answer);
        if (!Service::whetherAnEmptyString(renewed))
            requestData.insert(bizCodeKey, renewed);
        complete();
    };
    const Operation asked = askForCode(Success{this, sent}, Failure{});
    connect(asked.get(), &RequestOperation::finished, this, [this] {
        if (!sms.isCounting())
            sms.changeTimeButtonStyleWithIndex(TimeButton::Ready, sms.title());
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

QString TZSmsCodeController::inputProblem() const
{
    if (Service::whetherAnEmptyString(codeText))
        return QStringLiteral("请输入手机验证码");
    if (!Service::isRightFormatPhoneCaptcha(codeText))
        return QStringLiteral("手机验证码格式不正确，请重新输入");
    if (Service::whetherAnEmptyString(bizCode()))
        return QStringLiteral("交易码异常");
    return {};
}

bool TZSmsCodeController::checkInput() const
{
    const QString problem = inputProblem();
    if (!problem.isEmpty())
        Service::showErrorWithMsg(problem);
    return problem.isEmpty();
}

QVariantMap TZSmsCodeController::verification() const
{
    return {{bizCodeKey, bizCode()}, {QStringLiteral("userInput"), codeText}};
}

QString TZSmsCodeController::bizCode() const
{
    return requestData.value(bizCodeKey).toString();
}
