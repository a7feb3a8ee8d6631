#include "account/screens/TZRegisterController.h"

#include "account/screens/TZRegisterFinishController.h"
#include "core/net/ToolPolicy.h"
#include "core/shell/TZWebModel.h"
#include "core/util/Service.h"

using namespace std::chrono_literals;

TZRegisterController::TZRegisterController(Router &appRouter) : router(appRouter) {}

void TZRegisterController::setInviteCode(const QString &code)
{
    invitation = code;
    Q_EMIT inviteCodeChanged();
    delayToChangeBtnStyle();
}

void TZRegisterController::viewDidLoad()
{
    TZSignInCodeController::viewDidLoad();
    setTitle(QStringLiteral("注册"));
}

void TZRegisterController::viewWillDisappear()
{
    TZSignInCodeController::viewWillDisappear();
    pendingStep.stop();
}

void TZRegisterController::clickNextStepBtn()
{
    pendingStep.startOnce(500ms, [this] { todoSomething(); });
}

void TZRegisterController::clickAgreementBtn()
{
    router.openWeb(*this, {QStringLiteral("软件许可使用协议"),
                           ToolPolicy::url(QStringLiteral("mobile/software_permission_agreement.html"))});
}

bool TZRegisterController::isComplete() const
{
    const bool onlyBlanks = !invitation.isEmpty() && Service::whetherAnEmptyString(invitation);
    return TZSignInCodeController::isComplete() && !onlyBlanks;
}

void TZRegisterController::todoSomething()
{
    if (checkInput())
        verify({{QStringLiteral("inviteCode"), invitation}}, [this] { registerFinishController(); });
}

void TZRegisterController::registerFinishController()
{
    hidenWaitngView();
    auto finish = std::make_unique<TZRegisterFinishController>();
    finish->setToSomeController(toSomeController);
    pushNext(std::move(finish));
}
