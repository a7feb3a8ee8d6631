#include "core/shell/TZInfoAlertView.h"

using namespace std::chrono_literals;

TZInfoAlertView::TZInfoAlertView(TZInfoAlertViewModel alertModel, OwnedAction left, OwnedAction right)
    : model(std::move(alertModel)), leftAction(std::move(left)), rightAction(std::move(right))
{
}

void TZInfoAlertView::say(TZInfoAlertViewModel alertModel, OwnedAction left, OwnedAction right)
{
    model = std::move(alertModel);
    leftAction = std::move(left);
    rightAction = std::move(right);
    settling.startOnce(500ms, [] {});
    Q_EMIT contentChanged();
}

void TZInfoAlertView::leftBtnClick()
{
    if (!settling.isActive())
        close(leftAction);
}

void TZInfoAlertView::rightBtnClick()
{
    if (!settling.isActive())
        close(rightAction);
}

void TZInfoAlertView::cancel()
{
    close(model.leftTitle.isEmpty() ? rightAction : OwnedAction());
}

void TZInfoAlertView::close(const OwnedAction &action)
{
    if (!window())
        return;
    const OwnedAction chosen = action;
    removeFromWindow();
    chosen();
}
