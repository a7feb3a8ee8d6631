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

TEST_F(LeftMenuTest, ThreeRowsInTheirOrder)
{
    QStringList rows;
    for (const TZLeftMenuCell &row : menu->rows()->rows())
        rows << row.topLabel + u' ' + row.bottomLabel + u' ' + row.iconView;
    EXPECT_EQ(rows, (QStringList{QStringLiteral("首页 Home left_home"),
                                 QStringLiteral("我的账户 Account left_myaccount"),
                                 QStringLiteral("超级合伙人 Partner super_partner")}));
}

TEST_F(LeftMenuTest, SignedInEveryRowOpensItsPage)
{
    signIn();
    for (int row = -1; row < 4; ++row)
        menu->didSelectRow(row);
    EXPECT_EQ(calls(), QStringLiteral("showHome showMyAccount showCommissions"));
}

TEST_F(LeftMenuTest, SignedOutOnlyHomeOpensAndTheOthersFollowASignIn)
{
    menu->didSelectRow(0);
    EXPECT_EQ(calls(), QStringLiteral("showHome"));
    menu->didSelectRow(1);
    EXPECT_EQ(calls(), QStringLiteral("openSignIn")) << "nothing is shown before the sign-in";
    router.toSomeController();
    EXPECT_EQ(calls(), QStringLiteral("showMyAccount"));
    menu->didSelectRow(2);
    router.toSomeController();
    EXPECT_EQ(calls(), QStringLiteral("openSignIn showCommissions"));
}

TEST_F(LeftMenuTest, AMenuThatIsGoneIsNotContinued)
{
    menu->didSelectRow(1);
    menu.reset();
    router.toSomeController();
    EXPECT_EQ(calls(), QStringLiteral("openSignIn"));
}
