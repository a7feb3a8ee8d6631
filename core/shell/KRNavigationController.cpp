#include "core/shell/KRNavigationController.h"

#include "core/shell/KRBaseController.h"
#include "core/shell/KRWindow.h"

#include <algorithm>
#include <utility>

KRNavigationController::KRNavigationController(std::unique_ptr<KRBaseController> root)
{
    append(root.release());
}

KRNavigationController::~KRNavigationController()
{
    // Also those that are popped and wait to be deleted: a screen may still ask for its stack while it goes.
    qDeleteAll(findChildren<KRBaseController *>(Qt::FindDirectChildrenOnly));
}

void KRNavigationController::push(std::unique_ptr<KRBaseController> screen)
{
    screen->navigation = this;
    screen->loadViewIfNeeded();
    append(screen.release());
    tellScreens();
}

void KRNavigationController::append(KRBaseController *screen)
{
    screen->setParent(this);
    screen->navigation = this;
    const int row = rowCount();
    beginInsertRows({}, row, row);
    entries.push_back({screen, false});
    endInsertRows();
    Q_EMIT depthChanged();
}

void KRNavigationController::pop()
{
    if (depth() > 1)
        popTo(at(depth() - 2));
}

void KRNavigationController::popToRoot()
{
    popTo(root());
}

void KRNavigationController::popTo(KRBaseController *screen)
{
    if (!contains(screen) || screen == top())
        return;
    const int target = rowOf(screen);
    // Only the one on top is seen leaving; those between go at once.
    KRBaseController *const seen = animated && visible ? top() : nullptr;
    for (int row = rowCount() - 1; row > target; --row) {
        const Entry &entry = entries[static_cast<size_t>(row)];
        if (entry.leaving)
            continue;
        if (entry.screen == seen)
            leave(row);
        else
            removeRow(row);
    }
    Q_EMIT depthChanged();
    tellScreens();
}

int KRNavigationController::depth() const
{
    return static_cast<int>(
        std::count_if(entries.begin(), entries.end(), [](const Entry &e) { return !e.leaving; }));
}

KRBaseController *KRNavigationController::at(int index) const
{
    for (const Entry &entry : entries) {
        if (!entry.leaving && index-- == 0)
            return entry.screen;
    }
    return nullptr;
}

KRBaseController *KRNavigationController::top() const
{
    return at(depth() - 1);
}

bool KRNavigationController::contains(const KRBaseController *screen) const
{
    const int row = rowOf(screen);
    return row >= 0 && !entries[static_cast<size_t>(row)].leaving;
}

void KRNavigationController::attach(KRWindow *window)
{
    hostWindow = window;
    root()->loadViewIfNeeded();
}

void KRNavigationController::setVisible(bool nowVisible)
{
    visible = nowVisible;
    if (visible)
        root()->loadViewIfNeeded();
    tellScreens();
    if (!visible)
        removeLeaving();
}

void KRNavigationController::tellScreens()
{
    if (telling)
        return;
    telling = true;
    const auto wanted = [this] { return visible ? top() : nullptr; };
    while (appeared != wanted()) {
        KRBaseController *const next = wanted();
        KRBaseController *const old = std::exchange(appeared, next);
        if (old)
            old->viewWillDisappear();
        if (next)
            next->viewWillAppear();
        if (old)
            old->viewDidDisappear();
        if (next)
            next->viewDidAppear();
    }
    telling = false;
    if (hostWindow)
        hostWindow->updateVisibility();
}

void KRNavigationController::dismiss()
{
    if (hostWindow)
        hostWindow->dismiss(this);
}

void KRNavigationController::transitionFinished(QObject *screen)
{
    const int row = rowOf(screen);
    if (row >= 0 && entries[static_cast<size_t>(row)].leaving)
        removeRow(row);
}

int KRNavigationController::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(entries.size());
}

QVariant KRNavigationController::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Entry &entry = entries[static_cast<size_t>(index.row())];
    if (role == ControllerRole)
        return QVariant::fromValue<QObject *>(entry.screen);
    return role == LeavingRole ? QVariant(entry.leaving) : QVariant();
}

QHash<int, QByteArray> KRNavigationController::roleNames() const
{
    return {{ControllerRole, "controller"}, {LeavingRole, "leaving"}};
}

int KRNavigationController::rowOf(const QObject *screen) const
{
    const auto found =
        std::find_if(entries.begin(), entries.end(), [screen](const Entry &e) { return e.screen == screen; });
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

void KRNavigationController::leave(int row)
{
    entries[static_cast<size_t>(row)].leaving = true;
    Q_EMIT dataChanged(index(row), index(row), {LeavingRole});
}

void KRNavigationController::removeRow(int row)
{
    KRBaseController *const screen = entries[static_cast<size_t>(row)].screen;
    beginRemoveRows({}, row, row);
    entries.erase(entries.begin() + row);
    endRemoveRows();
    // Later: the call that pops a screen usually comes from that screen.
    screen->deleteLater();
}

void KRNavigationController::removeLeaving()
{
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (entries[static_cast<size_t>(row)].leaving)
            removeRow(row);
    }
}
