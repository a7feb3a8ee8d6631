#include "account/screens/TZNicknameController.h"

#include "account/screens/Nickname.h"
#include "core/session/TZUserTool.h"
#include "core/util/Service.h"

void TZNicknameController::textFiledEditChanged(const QString &text, bool markedText)
{
    nickname = markedText ? text : limitedNickname(text);
    // Also when nothing changed: the field has to drop what was just typed into it.
    Q_EMIT nickChanged();
}

void TZNicknameController::saveNick()
{
    if (isSending())
        return;
    const QString problem = nicknameProblem(nickname);
    if (!problem.isEmpty())
        return Service::showErrorWithMsg(problem);
    // What an input method was still composing has not been cut.
    waitFor(TZUserTool::setNickWithParam(
        {{QStringLiteral("nick"), limitedNickname(nickname)}},
        Success{this, [this](const Operation &, const QVariantMap &) { nickSaved(); }}, Failure{}));
}
