#include "core/shell/KRSideMenu.h"

#include "core/shell/KRBaseController.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRWindow.h"

KRSideMenu::KRSideMenu(std::unique_ptr<KRNavigationController> content, std::unique_ptr<KRBaseController> leftMenu)
    : contentStack(content.release()), menu(leftMenu.release())
{
    contentStack->setParent(this);
    menu->setParent(this);
    menu->viewDidLoad();
}

KRSideMenu::~KRSideMenu()
{
    delete contentStack;
    delete menu;
}

void KRSideMenu::attach(KRWindow *window)
{
    hostWindow = window;
    contentStack->attach(window);
    menu->attach(window);
}

void KRSideMenu::setContent(std::unique_ptr<KRNavigationController> stack)
{
    KRNavigationController *const old = contentStack;
    old->setVisible(false);
    contentStack = stack.release();
    contentStack->setParent(this);
    contentStack->attach(hostWindow);
    Q_EMIT contentChanged();
    old->deleteLater();
    if (hostWindow)
        hostWindow->updateVisibility();
}

void KRSideMenu::presentLeftMenu()
{
    setOpen(true);
}

void KRSideMenu::hideMenu()
{
    setOpen(false);
}

void KRSideMenu::setOpen(bool open)
{
    if (opened == open)
        return;
    opened = open;
    Q_EMIT openChanged();
}
