#include "core/shell/KRNavigationController.h"
#include "core/shell/KRSideMenu.h"
#include "core/shell/KRWindow.h"
#include "core/shell/TZLeftMenuController.h"
#include "core/shell/TZPlainPageController.h"
#include "core/util/Service.h"
#include "tests/support/RecordingRouter.h"
#include "tests/support/TestPlatform.h"

class LeftMenuTest : public PlatformTest {
protected:
    QString calls() { return std::exchange(router.calls, {}).join(u' '); }

    RecordingRouter router;
    std::unique_ptr<TZLeftMenuController> menu = std::make_unique<TZLeftMenuController>(router);
};

TEST_F(LeftMenuTest, ThreeRowsInTheirOrderOpenTheirPages)
{
    QStringList rows;
    for (const TZLeftMenuCell &row : menu->rows()->rows())
        rows << row.topLabel + u' ' + row.bottomLabel + u' ' + row.iconView;
    EXPECT_EQ(rows, (QStringList{"首页 Home left_home", "我的账户 Account left_myaccount",
                                 "超级合伙人 Partner super_partner"}));
    signIn();
    for (int row = -1; row < 4; ++row)
        menu->didSelectRow(row);
    EXPECT_EQ(calls(), "showHome showMyAccount showCommissions");
}

TEST_F(LeftMenuTest, TheRowOfThePageThatIsShownIsMarked)
{
    const auto stackOf = [](const char *title) {
        return std::make_unique<KRNavigationController>(
            std::make_unique<TZPlainPageController>(QString::fromUtf8(title), QString()));
    };
    const TZLeftMenuController &shown = *menu;
    int changes = 0;
    QObject::connect(menu.get(), &TZLeftMenuController::currentRowChanged, [&changes] { ++changes; });
    EXPECT_EQ(shown.currentRow(), -1);
    KRWindow window;
    window.setRoot(std::make_unique<KRSideMenu>(stackOf("首页"), std::move(menu)));
    EXPECT_EQ(shown.currentRow(), 0);
    window.sideMenu()->setContent(stackOf("我的账户"));
    EXPECT_EQ(shown.currentRow(), 1);
    EXPECT_EQ(changes, 1);
    window.sideMenu()->content()->push(std::make_unique<TZPlainPageController>("超级合伙人", QString()));
    EXPECT_EQ(shown.currentRow(), 1) << "the root counts, not what lies over it";
}

TEST_F(LeftMenuTest, SignedOutOnlyHomeOpensAndTheOthersFollowASignInWhileTheMenuIsThere)
{
    menu->didSelectRow(0);
    EXPECT_EQ(calls(), "showHome");
    for (const auto &[row, door] : {std::pair(1, "showMyAccount"), std::pair(2, "showCommissions")}) {
        menu->didSelectRow(row);
        EXPECT_EQ(calls(), "openSignIn") << "nothing is shown before the sign-in";
        router.toSomeController();
        EXPECT_EQ(calls(), door);
    }
    menu->didSelectRow(1);
    menu.reset();
    router.toSomeController();
    EXPECT_EQ(calls(), "openSignIn");
}
