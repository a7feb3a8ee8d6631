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
    const int row = rowCount();
    beginInsertRows({}, row, row);
    items.append(item);
    endInsertRows();
    Q_EMIT countChanged();
}

void ObjectListModel::leave(QObject *item)
{
    going.append(item);
    const QModelIndex row = index(static_cast<int>(items.indexOf(item)));
    Q_EMIT dataChanged(row, row, {LeavingRole});
    Q_EMIT countChanged();
}

void ObjectListModel::remove(QObject *item)
{
    const int row = static_cast<int>(items.indexOf(item));
    beginRemoveRows({}, row, row);
    items.removeAt(row);
    going.removeAll(item);
    endRemoveRows();
    Q_EMIT countChanged();
}

QList<QObject *> ObjectListModel::takeAll()
{
    const QList<QObject *> all(items.crbegin(), items.crend());
    for (QObject *const item : all)
        remove(item);
    return all;
}

int ObjectListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(items.size());
}

QVariant ObjectListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    QObject *const item = items.at(index.row());
    return role == LeavingRole ? QVariant(going.contains(item)) : QVariant::fromValue(item);
}

QHash<int, QByteArray> ObjectListModel::roleNames() const
{
    return {{ItemRole, "item"}, {LeavingRole, "leaving"}};
}

QList<QObject *> ObjectListModel::staying() const
{
    QList<QObject *> all = items;
    all.removeIf([this](QObject *item) { return going.contains(item); });
    return all;
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
    for (QObject *const stack : presentedStacks.takeAll())
        outgoing.push_back(stack);
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
    if (!presentedStacks.contains(stack))
        return;
    takeAway(stack, presentedStacks, animated && stack == presentedStacks.last());
    updateVisibility();
}

void KRWindow::takeAway(QObject *item, ObjectListModel &from, bool seen)
{
    if (seen)
        return from.leave(item);
    from.remove(item);
    item->deleteLater();
}

void KRWindow::transitionFinished(QObject *gone)
{
    for (ObjectListModel *const list : {&presentedStacks, &shownDialogs}) {
        if (list->isLeaving(gone))
            takeAway(gone, *list, false);
    }
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
    if (shownDialogs.contains(dialog))
        takeAway(dialog, shownDialogs, animated);
}

KRNavigationController *KRWindow::topStack() const
{
    if (QObject *const stack = presentedStacks.last())
        return qobject_cast<KRNavigationController *>(stack);
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
