#include "account/screens/TZRegisterFinishController.h"

void TZRegisterFinishController::viewDidLoad()
{
    TZNicknameController::viewDidLoad();
    setTitle(QStringLiteral("设置昵称"));
    createNavLeftItemWithTitle({}, QStringLiteral("common_close_gray"), {}, {});
    // The way back leads to a code that is used up.
    setIsNeedGesture(false);
}
