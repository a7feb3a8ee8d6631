#include "core/shell/KRDialog.h"

#include "core/shell/KRWindow.h"

#include <utility>

void KRDialog::removeFromWindow()
{
    if (!hostWindow)
        return;
    std::exchange(hostWindow, nullptr)->remove(this);
    Q_EMIT removed();
}
