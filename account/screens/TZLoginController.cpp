#include "account/screens/TZLoginController.h"

void TZLoginController::viewDidLoad()
{
    TZSignInCodeController::viewDidLoad();
    setTitle(QStringLiteral("登录"));
}

void TZLoginController::clickNextStepBtn()
{
    if (checkInput())
        verify({}, [this] { finishSignIn(*this); });
}
