#include "account/screens/TZPersonalController.h"

#include "account/screens/TZModifyNicknameController.h"
#include "account/screens/TZVerifyPhoneController.h"
#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/session/NotificationNames.h"
#include "core/session/TZUserModel.h"
#include "core/session/TZUserTool.h"
#include "core/util/Service.h"

QString TZPersonalController::displayName() const
{
    const QString nick = TZUserModel::stored().nick;
    return Service::whetherAnEmptyString(nick) ? cell() : nick;
}

QString TZPersonalController::cell() const
{
    return Service::encryptionPhoneNumber(TZUserModel::stored().cell);
}

QString TZPersonalController::name() const
{
    const QString name = TZUserModel::stored().name;
    return Service::whetherAnEmptyString(name) ? QStringLiteral("未实名") : Service::encryptionName(name);
}

QString TZPersonalController::nick() const
{
    const QString nick = TZUserModel::stored().nick;
    return Service::whetherAnEmptyString(nick) ? QStringLiteral("未设置") : nick;
}

void TZPersonalController::viewDidLoad()
{
    TZFormController::viewDidLoad();
    changeGrayBgColor();
    setTitle(QStringLiteral("个人资料"));
    setShowBackButton(true);
    Platform::current().notifications.observe(this, NotificationNames::userChanged,
                                              [this](const QVariant &) { Q_EMIT userChanged(); });
}

void TZPersonalController::nickRowClick()
{
    pushNext(std::make_unique<TZModifyNicknameController>());
}

void TZPersonalController::tradePwdRowClick()
{
    if (isSending())
        return;
    const auto allowed = [this](const Operation &, const QVariantMap &) {
        pushNext(std::make_unique<TZVerifyPhoneController>());
    };
    waitFor(TZUserTool::canUpdataPasswordWithParam({}, Success{this, allowed}, Failure{}));
}
