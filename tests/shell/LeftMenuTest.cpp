#include "core/shell/TZLeftMenuController.h"
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
