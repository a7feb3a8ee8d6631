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
    sending = true;
    connect(operation.get(), &RequestOperation::finished, this, [this] { sending = false; });
}

void TZFormController::pushNext(std::unique_ptr<KRBaseController> next)
{
    KRNavigationController *const stack = navigationController();
    if (stack && stack->top() == this)
        stack->push(std::move(next));
}
