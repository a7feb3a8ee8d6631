#include "core/shell/TZPlainPageController.h"

#include "core/shell/KRNavigationController.h"
#include "core/shell/KRSideMenu.h"
#include "core/shell/KRWindow.h"

TZPlainPageController::TZPlainPageController(const QString &title, QString text) : sentence(std::move(text))
{
    setTitle(title);
}

void TZPlainPageController::viewDidLoad()
{
    KRBaseController::viewDidLoad();
    changeGrayBgColor();
    if (navigationController()->root() != this)
        createNavLeftItemWithTitle({}, QStringLiteral("common_back_gray"), {}, {});
    else if (isContentRoot())
        createNavLeftItemWithTitle({}, QStringLiteral("home_left"), {}, {});
    else
        createNavLeftItemWithTitle({}, {}, {}, QStringLiteral("common_close_gray"));
}

void TZPlainPageController::leftItemClick()
{
    if (isContentRoot())
        window()->sideMenu()->presentLeftMenu();
    else
        KRBaseController::leftItemClick();
}

void TZPlainPageController::rightItemClick()
{
    navigationController()->dismiss();
}

bool TZPlainPageController::isContentRoot() const
{
    const KRSideMenu *const frame = window() ? window()->sideMenu() : nullptr;
    return frame && frame->content() == navigationController() && navigationController()->root() == this;
}
