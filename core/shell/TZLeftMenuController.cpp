#include "core/shell/TZLeftMenuController.h"

#include "core/shell/KRNavigationController.h"
#include "core/shell/KRSideMenu.h"
#include "core/shell/KRWindow.h"
#include "core/shell/Router.h"
#include "core/util/Service.h"

#include <algorithm>

namespace {
struct Destination {
    const char16_t *top;
    const char16_t *bottom;
    const char16_t *icon;
    void (Router::*show)(KRBaseController &from);
    bool needsSignIn;
};

const Destination destinations[] = {
    {u"首页", u"Home", u"left_home", &Router::showHome, false},
    {u"我的账户", u"Account", u"left_myaccount", &Router::showMyAccount, true},
    {u"超级合伙人", u"Partner", u"super_partner", &Router::showCommissions, true},
};
} // namespace

TZLeftMenuController::TZLeftMenuController(Router &appRouter) : router(appRouter)
{
    QList<TZLeftMenuCell> menu;
    for (const Destination &row : destinations)
        menu.append(
            {QString::fromUtf16(row.top), QString::fromUtf16(row.bottom), QString::fromUtf16(row.icon)});
    cells.setRows(menu);
}

void TZLeftMenuController::viewDidLoad()
{
    KRBaseController::viewDidLoad();
    if (const KRSideMenu *const frame = window()->sideMenu())
        connect(frame, &KRSideMenu::contentChanged, this, &TZLeftMenuController::currentRowChanged);
}

// Pages are called what their rows are called.
int TZLeftMenuController::currentRow() const
{
    const KRSideMenu *const frame = window() ? window()->sideMenu() : nullptr;
    if (!frame)
        return -1;
    const QString title = frame->content()->root()->title();
    const auto found = std::find_if(cells.rows().begin(), cells.rows().end(),
                                    [&title](const TZLeftMenuCell &cell) { return cell.topLabel == title; });
    return found == cells.rows().end() ? -1 : static_cast<int>(found - cells.rows().begin());
}

void TZLeftMenuController::didSelectRow(int row)
{
    if (row < 0 || row >= cells.count())
        return;
    const Destination &chosen = destinations[row];
    const auto show = [this, chosen] { (router.*chosen.show)(*this); };
    if (chosen.needsSignIn && !Service::isLogin())
        router.openSignIn(*this, ToSomeController{this, show});
    else
        show();
}
