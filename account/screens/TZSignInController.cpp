#include "account/screens/TZSignInController.h"

#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/session/NotificationNames.h"
#include "core/shell/KRNavigationController.h"

void TZSignInController::viewWillDisappear()
{
    KRBaseController::viewWillDisappear();
    endEditing();
}

void TZSignInController::finishSignIn()
{
    hidenWaitngView();
    Platform::current().notifications.post(NotificationNames::refreshHome);
    toSomeController();
    closeSignIn();
}

void TZSignInController::closeSignIn()
{
    if (navigationController())
        navigationController()->dismiss();
}
