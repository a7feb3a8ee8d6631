#include "core/shell/TZGuideController.h"

#include <algorithm>
#include <utility>

namespace {
constexpr int pageCount = 4;
constexpr int shortScreen = 480;
} // namespace

QStringList TZGuideController::pages() const
{
    const QString form = height == shortScreen ? QStringLiteral("guide%1_4") : QStringLiteral("guide%1");
    QStringList names;
    for (int number = 1; number <= pageCount; ++number)
        names << form.arg(number);
    return names;
}

void TZGuideController::setPage(int page)
{
    const int next = std::clamp(page, 0, pageCount - 1);
    if (next == current)
        return;
    current = next;
    Q_EMIT pageChanged();
}

bool TZGuideController::isLastPage() const
{
    return current == pageCount - 1;
}

void TZGuideController::removeGuideView()
{
    if (TZGuideControllerDelegate *const told = std::exchange(delegate, nullptr))
        told->clickRemoveGuideViewBtn();
}

QString TZGuideController::pageText() const
{
    return QStringLiteral("第%1页，共%2页").arg(current + 1).arg(pages().size());
}
