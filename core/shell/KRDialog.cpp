#include "core/shell/KRDialog.h"

#include "core/shell/KRWindow.h"

void KRDialog::removeFromWindow()
{
    if (hostWindow)
        hostWindow->remove(this);
    hostWindow = nullptr;
}
