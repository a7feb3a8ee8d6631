#include "tests/ui/UiWorld.h"

#include "core/session/DisplaySettings.h"
#include "core/shell/TZInfoAlertView.h"
#include "core/shell/TZPlainPageController.h"

#include <QQmlEngine>

namespace {
std::unique_ptr<KRBaseController> page(const QString &title)
{
    return std::make_unique<TZPlainPageController>(title, QStringLiteral("text of ") + title);
}
} // namespace

KRNavigationController *UiWorld::makeStack()
{
    auto stack = std::make_unique<KRNavigationController>(page(QStringLiteral("root")));
    stack->setVisible(true);
    QQmlEngine::setObjectOwnership(stack.get(), QQmlEngine::JavaScriptOwnership);
    return stack.release();
}

void UiWorld::push(KRNavigationController *stack, const QString &title, bool gesture)
{
    stack->push(page(title));
    stack->top()->setIsNeedGesture(gesture);
}

CountingList *UiWorld::makeList()
{
    auto list = std::make_unique<CountingList>();
    QQmlEngine::setObjectOwnership(list.get(), QQmlEngine::JavaScriptOwnership);
    return list.release();
}

void UiWorld::present(const QString &title)
{
    theWindow.present(page(title));
}

void UiWorld::showQuestion()
{
    given.clear();
    theWindow.show(std::make_unique<TZInfoAlertView>(
        TZInfoAlertViewModel{QStringLiteral("提示"), QStringLiteral("确定？"), QStringLiteral("取消"),
                             QStringLiteral("确定")},
        OwnedAction{this, [this] { given += QLatin1String("left "); }},
        OwnedAction{this, [this] { given += QLatin1String("right "); }}));
}

TZTradePwdAlertView *UiWorld::showPrompt()
{
    return TZTradePwdAlertView::showAlertView(theWindow, *this, *this);
}

void UiWorld::wait(bool waiting)
{
    if (waiting)
        overlays.showWaiting(QStringLiteral("加载中..."));
    else
        overlays.hideWaiting();
}

void UiWorld::waitLong()
{
    wait(true);
    runLoop.advance(std::chrono::seconds(5));
}

void UiWorld::display(int palette, int trendColours, int textSize)
{
    DisplaySettings display;
    display.palette = static_cast<DisplaySettings::Palette>(palette);
    display.trendColours = static_cast<DisplaySettings::TrendColours>(trendColours);
    display.textSize = static_cast<DisplaySettings::TextSize>(textSize);
    display.store();
}
