#include "core/shell/KRWindow.h"

#include "core/shell/KRBaseController.h"
#include "core/shell/KRDialog.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRSideMenu.h"

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
    for (int row = 0; row < presentedStacks.count(); ++row)
        delete presentedStacks.at(row);
    for (int row = 0; row < shownDialogs.count(); ++row)
        delete shownDialogs.at(row);
    delete rootObject;
}

void KRWindow::setRoot(std::unique_ptr<KRBaseController> root)
{
    KRBaseController *const screen = root.get();
    screen->attach(this);
    screen->viewDidLoad();
    screen->viewWillAppear();
    replaceRoot(root.release());
    screen->viewDidAppear();
}

void KRWindow::setRoot(std::unique_ptr<KRSideMenu> root)
{
    KRSideMenu *const menu = root.get();
    menu->attach(this);
    replaceRoot(root.release());
    updateVisibility();
}

void KRWindow::replaceRoot(QObject *root)
{
    while (presentedStacks.count() > 0) {
        auto *const stack = qobject_cast<KRNavigationController *>(presentedStacks.at(presentedStacks.count() - 1));
        stack->setVisible(false);
        presentedStacks.removeAt(presentedStacks.count() - 1);
        stack->deleteLater();
    }
    QObject *const old = rootObject;
    if (auto *const screen = qobject_cast<KRBaseController *>(old)) {
        screen->viewWillDisappear();
        screen->viewDidDisappear();
    } else if (auto *const menu = qobject_cast<KRSideMenu *>(old)) {
        menu->content()->setVisible(false);
    }
    root->setParent(this);
    rootObject = root;
    Q_EMIT rootChanged();
    if (old)
        old->deleteLater();
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
    stack->setVisible(false);
    presentedStacks.removeAt(row);
    stack->deleteLater();
    updateVisibility();
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

void KRWindow::updateVisibility()
{
    KRNavigationController *const shown = topStack();
    if (sideMenu() && sideMenu()->content() != shown)
        sideMenu()->content()->setVisible(false);
    for (int row = 0; row < presentedStacks.count(); ++row) {
        if (presentedStacks.at(row) != shown)
            qobject_cast<KRNavigationController *>(presentedStacks.at(row))->setVisible(false);
    }
    if (shown)
        shown->setVisible(true);
}
