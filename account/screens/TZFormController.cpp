#include "account/screens/TZFormController.h"

#include "core/shell/KRNavigationController.h"

void TZFormController::viewWillAppear()
{
    KRBaseController::viewWillAppear();
    // What covered it took the indicator away.
    if (isSending())
        showWaitingView();
}

void TZFormController::waitFor(const Operation &operation)
{
    setSending(true);
    connect(operation.get(), &RequestOperation::finished, this, [this] { setSending(false); });
}

void TZFormController::setSending(bool nowSending)
{
    sending = nowSending;
    Q_EMIT barChanged();
}

void TZFormController::pushNext(std::unique_ptr<KRBaseController> next)
{
    if (isOnTop())
        navigationController()->push(std::move(next));
}
