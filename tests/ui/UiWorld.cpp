#include "tests/ui/UiWorld.h"

#include "core/session/DisplaySettings.h"
#include "core/shell/TZInfoAlertView.h"
#include "core/shell/TZPlainPageController.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMetaEnum>
#include <QQmlEngine>
#include <QQuickWindow>

namespace {
std::unique_ptr<KRBaseController> page(const QString &title)
{
    return std::make_unique<TZPlainPageController>(title, QStringLiteral("text of ") + title);
}

QString changes;

void noteChange(QAccessibleEvent *event)
{
    if (event->type() == QAccessible::TextUpdated) {
        const auto *const update = static_cast<QAccessibleTextUpdateEvent *>(event);
        changes += update->textRemoved() + update->textInserted();
    } else if (event->type() == QAccessible::TextInserted) {
        changes += static_cast<QAccessibleTextInsertEvent *>(event)->textInserted();
    } else if (event->type() == QAccessible::TextRemoved) {
        changes += static_cast<QAccessibleTextRemoveEvent *>(event)->textRemoved();
    }
}

QString textOf(QAccessibleInterface *spoken)
{
    QAccessibleTextInterface *const text = spoken->textInterface();
    return (text ? text->text(0, text->characterCount()) : QString()) + spoken->text(QAccessible::Value);
}

QString everything(QAccessibleInterface *spoken)
{
    if (!spoken)
        return {};
    QString all = spoken->text(QAccessible::Name) + u'|' + spoken->text(QAccessible::Description) + u'|' +
                  textOf(spoken) + u'\n';
    for (int child = 0; child < spoken->childCount(); ++child)
        all += everything(spoken->child(child));
    return all;
}
} // namespace

UiWorld::UiWorld()
{
    QAccessible::setActive(true);
    QAccessible::installUpdateHandler(noteChange);
}

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
    list->attach(&theWindow);
    QQmlEngine::setObjectOwnership(list.get(), QQmlEngine::JavaScriptOwnership);
    return list.release();
}

TZGuideController *UiWorld::makeGuide()
{
    auto guide = std::make_unique<TZGuideController>(*this);
    QQmlEngine::setObjectOwnership(guide.get(), QQmlEngine::JavaScriptOwnership);
    return guide.release();
}

void UiWorld::present(const QString &title)
{
    theWindow.present(page(title));
}

void UiWorld::showQuestion(const QString &text)
{
    given.clear();
    theWindow.show(std::make_unique<TZInfoAlertView>(
        TZInfoAlertViewModel{QStringLiteral("提示"), text, QStringLiteral("取消"), QStringLiteral("确定")},
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

QVariantMap UiWorld::spoken(QObject *item) const
{
    QAccessibleInterface *const told = QAccessible::queryAccessibleInterface(item);
    if (!told)
        return {};
    const QAccessible::State state = told->state();
    return {{"role", QString::fromLatin1(QMetaEnum::fromType<QAccessible::Role>().valueToKey(told->role()))},
            {"name", told->text(QAccessible::Name)},
            {"description", told->text(QAccessible::Description)},
            {"text", textOf(told)},
            {"focusable", bool(state.focusable)},
            {"focused", bool(state.focused)},
            {"checkable", bool(state.checkable)},
            {"checked", bool(state.checked)},
            {"selected", bool(state.selected)},
            {"pressable", told->actionInterface() && told->actionInterface()->actionNames().contains(
                                                         QAccessibleActionInterface::pressAction())}};
}

QString UiWorld::heard(QObject *item)
{
    return std::exchange(changes, {}) + everything(QAccessible::queryAccessibleInterface(item));
}

void UiWorld::pressSpoken(QObject *item) const
{
    QAccessibleInterface *const told = QAccessible::queryAccessibleInterface(item);
    if (told && told->actionInterface())
        told->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

void UiWorld::repeatKey(QQuickItem *item, int key) const
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(item->window(), &event);
}

void UiWorld::display(int palette, int trendColours, int textSize)
{
    DisplaySettings display;
    display.palette = static_cast<DisplaySettings::Palette>(palette);
    display.trendColours = static_cast<DisplaySettings::TrendColours>(trendColours);
    display.textSize = static_cast<DisplaySettings::TextSize>(textSize);
    display.store();
}
