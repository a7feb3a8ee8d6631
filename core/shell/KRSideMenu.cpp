#include "core/shell/KRSideMenu.h"

#include "core/shell/KRBaseController.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRWindow.h"

#include <utility>

KRSideMenu::KRSideMenu(std::unique_ptr<KRNavigationController> content,
                       std::unique_ptr<KRBaseController> leftMenu)
    : contentStack(content.release()), menu(leftMenu.release())
{
    contentStack->setParent(this);
    menu->setParent(this);
}

KRSideMenu::~KRSideMenu()
{
    delete contentStack;
    delete menu;
}

void KRSideMenu::attach(KRWindow *window)
{
    hostWindow = window;
    menu->attach(window);
    menu->loadViewIfNeeded();
    contentStack->attach(window);
}

void KRSideMenu::setContent(std::unique_ptr<KRNavigationController> stack)
{
    KRNavigationController *const old = std::exchange(contentStack, stack.release());
    contentStack->setParent(this);
    contentStack->attach(hostWindow);
    Q_EMIT contentChanged();
    if (hostWindow)
        hostWindow->updateVisibility();
    // Later: the call that changes the content may come from a screen of the old one.
    old->deleteLater();
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
    if (open && delegate)
        delegate->willShowMenu();
    opened = open;
    Q_EMIT openChanged();
}
