#include "account/screens/TZSignInStep.h"

#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/session/NotificationNames.h"
#include "core/shell/KRBaseController.h"
#include "core/shell/KRNavigationController.h"
#include "core/util/Service.h"

void TZSignInStep::finishSignIn(KRBaseController &step)
{
    Service::hideWaitingProgressView();
    Platform::current().notifications.post(NotificationNames::refreshHome);
    toSomeController();
    closeSignIn(step);
}

void TZSignInStep::closeSignIn(KRBaseController &step)
{
    if (step.navigationController())
        step.navigationController()->dismiss();
}
