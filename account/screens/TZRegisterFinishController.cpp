#include "account/screens/TZRegisterFinishController.h"

#include "account/screens/Nickname.h"
#include "core/session/TZUserTool.h"
#include "core/util/Service.h"

void TZRegisterFinishController::viewDidLoad()
{
    TZSignInController::viewDidLoad();
    setTitle(QStringLiteral("设置昵称"));
    createNavLeftItemWithTitle({}, QStringLiteral("common_close_gray"), {}, {});
    // The way back leads to a code that is used up.
    setIsNeedGesture(false);
}

void TZRegisterFinishController::leftItemClick()
{
    closeSignIn();
}

void TZRegisterFinishController::textFiledEditChanged(const QString &text)
{
    nickname = limitedNickname(text);
    // Also when nothing changed: the field has to drop what was just typed into it.
    Q_EMIT nickChanged();
}

void TZRegisterFinishController::clickNextStepBtn()
{
    if (sending)
        return;
    const QString problem = nicknameProblem(nickname);
    if (!problem.isEmpty())
        return Service::showErrorWithMsg(problem);
    sending = true;
    const Operation operation = TZUserTool::setNickWithParam(
        {{QStringLiteral("nick"), nickname}},
        Success{this, [this](const Operation &, const QVariantMap &) { finishSignIn(); }}, Failure{});
    connect(operation.get(), &RequestOperation::finished, this, [this] { sending = false; });
}
