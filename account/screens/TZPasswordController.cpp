#include "account/screens/TZPasswordController.h"

void TZPasswordController::setInput(const QString &text)
{
    digits.setText(text);
    // Also when nothing changed: the field has to drop what was just typed into it.
    Q_EMIT inputChanged();
    if (digits.isComplete())
        inputCompleted();
}

void TZPasswordController::clearInput()
{
    digits.wipe();
    Q_EMIT inputChanged();
}
