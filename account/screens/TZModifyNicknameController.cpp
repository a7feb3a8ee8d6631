#include "account/screens/TZModifyNicknameController.h"

#include "core/shell/KRNavigationController.h"
#include "core/util/Service.h"

void TZModifyNicknameController::viewDidLoad()
{
    TZNicknameController::viewDidLoad();
    setTitle(isSetNickname ? QStringLiteral("设置昵称") : QStringLiteral("修改昵称"));
    createNavLeftItemWithTitle(
        {}, isFirstShow ? QStringLiteral("common_close_gray") : QStringLiteral("common_back_gray"), {}, {});
}

void TZModifyNicknameController::leftItemClick()
{
    if (isFirstShow)
        return navigationController()->dismiss();
    TZNicknameController::leftItemClick();
}

void TZModifyNicknameController::nickSaved()
{
    Service::showSuccessWithMsg(QStringLiteral("设置成功"));
    leftItemClick();
}
