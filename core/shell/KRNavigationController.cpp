#include "core/shell/KRNavigationController.h"

#include "core/shell/KRBaseController.h"
#include "core/shell/KRWindow.h"

#include <algorithm>

KRNavigationController::KRNavigationController(std::unique_ptr<KRBaseController> root)
{
    push(std::move(root));
}

KRNavigationController::~KRNavigationController()
{
    for (const Entry &entry : entries)
        delete entry.screen;
}

void KRNavigationController::push(std::unique_ptr<KRBaseController> screen)
{
    KRBaseController *const below = depth() > 0 ? top() : nullptr;
    KRBaseController *const added = screen.release();
    added->setParent(this);
    added->navigation = this;
    // What plays the screens' movements finds a screen that was popped below the one that is pushed now.
    added->viewDidLoad();
    if (visible && below)
        below->viewWillDisappear();
    if (visible)
        added->viewWillAppear();
    const int row = rowCount();
    beginInsertRows({}, row, row);
    entries.push_back({added, false});
    endInsertRows();
    Q_EMIT depthChanged();
    if (visible && below)
        below->viewDidDisappear();
    if (visible)
        added->viewDidAppear();
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
    KRBaseController *const shown = top();
    if (shown == screen || rowOf(screen) < 0)
        return;
    if (visible) {
        shown->viewWillDisappear();
        screen->viewWillAppear();
    }
    std::vector<KRBaseController *> left;
    for (int row = rowOf(screen) + 1; row < rowCount(); ++row) {
        if (!entries[static_cast<size_t>(row)].leaving)
            left.push_back(entries[static_cast<size_t>(row)].screen);
    }
    // Only the one on top is seen leaving; those between go at once.
    for (KRBaseController *const gone : left) {
        if (animated && gone == shown)
            leave(gone);
        else
            removeRow(rowOf(gone));
    }
    Q_EMIT depthChanged();
    if (visible) {
        shown->viewDidDisappear();
        screen->viewDidAppear();
    }
}

int KRNavigationController::depth() const
{
    return static_cast<int>(std::count_if(entries.begin(), entries.end(), [](const Entry &e) { return !e.leaving; }));
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

void KRNavigationController::setVisible(bool nowVisible)
{
    if (visible == nowVisible)
        return;
    KRBaseController *const shown = top();
    if (nowVisible) {
        shown->viewWillAppear();
        visible = true;
        shown->viewDidAppear();
    } else {
        shown->viewWillDisappear();
        visible = false;
        shown->viewDidDisappear();
    }
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
    const auto found = std::find_if(entries.begin(), entries.end(), [screen](const Entry &e) { return e.screen == screen; });
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

void KRNavigationController::leave(KRBaseController *screen)
{
    const int row = rowOf(screen);
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
