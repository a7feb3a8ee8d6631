#include "core/shell/KRWindow.h"

#include "core/shell/KRBaseController.h"
#include "core/shell/KRDialog.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRSideMenu.h"

#include <utility>

namespace {
void setAppeared(QObject *item, bool appeared)
{
    if (auto *const stack = qobject_cast<KRNavigationController *>(item)) {
        stack->setVisible(appeared);
    } else if (auto *const screen = qobject_cast<KRBaseController *>(item)) {
        if (appeared) {
            screen->viewWillAppear();
            screen->viewDidAppear();
        } else {
            screen->viewWillDisappear();
            screen->viewDidDisappear();
        }
    }
}
} // namespace

void ObjectListModel::append(QObject *item)
{
    beginInsertRows({}, count(), count());
    items.append(item);
    endInsertRows();
    Q_EMIT countChanged();
}

void ObjectListModel::removeAt(int row)
{
    beginRemoveRows({}, row, row);
    items.removeAt(row);
    endRemoveRows();
    Q_EMIT countChanged();
}

QVariant ObjectListModel::data(const QModelIndex &index, int) const
{
    return index.isValid() && index.row() < count() ? QVariant::fromValue(items.at(index.row())) : QVariant();
}

QHash<int, QByteArray> ObjectListModel::roleNames() const
{
    return {{Qt::UserRole, "item"}};
}

KRWindow::KRWindow(QObject *parent) : QObject(parent) {}

KRWindow::~KRWindow()
{
    // Before the members: screens and dialogs may ask for their window while they go.
    qDeleteAll(findChildren<QObject *>(Qt::FindDirectChildrenOnly));
}

void KRWindow::makeKeyAndVisible()
{
    visible = true;
    Q_EMIT visibleChanged();
}

void KRWindow::setRoot(std::unique_ptr<KRBaseController> root)
{
    KRBaseController *const screen = root.release();
    replaceRoot(screen);
    screen->attach(this);
    screen->loadViewIfNeeded();
    showRoot();
}

void KRWindow::setRoot(std::unique_ptr<KRSideMenu> root)
{
    KRSideMenu *const menu = root.release();
    replaceRoot(menu);
    menu->attach(this);
    showRoot();
}

void KRWindow::replaceRoot(QObject *root)
{
    while (presentedStacks.count() > 0) {
        outgoing.push_back(presentedStacks.at(presentedStacks.count() - 1));
        presentedStacks.removeAt(presentedStacks.count() - 1);
    }
    if (rootObject)
        outgoing.push_back(rootObject);
    root->setParent(this);
    rootObject = root;
}

void KRWindow::showRoot()
{
    Q_EMIT rootChanged();
    updateVisibility();
    // Later: the call that changes the root usually comes from a screen of the old one.
    for (QObject *const gone : std::exchange(outgoing, {}))
        gone->deleteLater();
}

KRSideMenu *KRWindow::sideMenu() const
{
    return qobject_cast<KRSideMenu *>(rootObject);
}

KRNavigationController *KRWindow::present(std::unique_ptr<KRNavigationController> stack)
{
    KRNavigationController *const presented = stack.release();
    presented->setParent(this);
    presented->attach(this);
    presentedStacks.append(presented);
    updateVisibility();
    return presented;
}

KRNavigationController *KRWindow::present(std::unique_ptr<KRBaseController> screen)
{
    return present(std::make_unique<KRNavigationController>(std::move(screen)));
}

void KRWindow::dismiss(KRNavigationController *stack)
{
    const int row = presentedStacks.indexOf(stack);
    if (row < 0)
        return;
    presentedStacks.removeAt(row);
    updateVisibility();
    stack->deleteLater();
}

void KRWindow::show(std::unique_ptr<KRDialog> dialog)
{
    KRDialog *const shown = dialog.release();
    shown->setParent(this);
    shown->hostWindow = this;
    shownDialogs.append(shown);
}

void KRWindow::remove(KRDialog *dialog)
{
    const int row = shownDialogs.indexOf(dialog);
    if (row < 0)
        return;
    shownDialogs.removeAt(row);
    dialog->deleteLater();
}

KRNavigationController *KRWindow::topStack() const
{
    if (presentedStacks.count() > 0)
        return qobject_cast<KRNavigationController *>(presentedStacks.at(presentedStacks.count() - 1));
    return sideMenu() ? sideMenu()->content() : nullptr;
}

QObject *KRWindow::front() const
{
    if (KRNavigationController *const stack = topStack())
        return stack;
    return rootObject;
}

void KRWindow::updateVisibility()
{
    // A screen may change what is in front while it is told of a move: first it is told to the end, then of
    // the change.
    const auto *const stack = qobject_cast<KRNavigationController *>(appeared);
    if (updating || (stack && stack->isTelling()))
        return;
    updating = true;
    while (appeared != front()) {
        if (appeared)
            setAppeared(std::exchange(appeared, nullptr), false);
        else
            setAppeared(appeared = front(), true);
    }
    updating = false;
}
