#include "core/shell/KRDialog.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRSideMenu.h"
#include "core/shell/KRWindow.h"
#include "core/shell/TZBaseTableViewController.h"
#include "core/util/Service.h"
#include "tests/shell/RecordingScreen.h"
#include "tests/support/TestPlatform.h"

#include <QPointer>

namespace {
class EmptyDialog : public KRDialog {
public:
    QString view() const override { return "EmptyDialog"; }
    void cancel() override { removeFromWindow(); }
};

class CountingMenuDelegate : public KRSideMenuDelegate {
public:
    void willShowMenu() override { ++shown; }
    int shown = 0;
};
} // namespace

/// A window whose frame holds a stack with the root "home".
class NavigationTest : public PlatformTest {
protected:
    NavigationTest()
    {
        window.setRoot(std::make_unique<KRSideMenu>(stackOf("home"), screen("menu")));
        log.clear();
    }

    std::unique_ptr<RecordingScreen> screen(const char *name)
    {
        return std::make_unique<RecordingScreen>(QString::fromUtf8(name), log);
    }

    std::unique_ptr<KRNavigationController> stackOf(const char *root)
    {
        return std::make_unique<KRNavigationController>(screen(root));
    }

    RecordingScreen *push(const char *name, KRNavigationController *stack = nullptr)
    {
        auto pushed = screen(name);
        RecordingScreen *const added = pushed.get();
        (stack ? stack : content())->push(std::move(pushed));
        return added;
    }

    KRNavigationController *content() const { return window.sideMenu()->content(); }

    /// What was told since the last call, one line each.
    std::string told()
    {
        settle();
        return std::exchange(log, {}).join(u'\n').toStdString();
    }

    QStringList log;
    KRWindow window;
};

TEST_F(NavigationTest, PoppingOverSeveralTellsNothingToThoseBetween)
{
    push("a");
    push("b");
    push("c");
    RecordingScreen stranger("stranger", log);
    told();
    content()->popTo(&stranger);
    EXPECT_EQ(told(), "") << "no screen of this stack";
    content()->popToRoot();
    EXPECT_EQ(told(),
              "c willDisappear\nhome willAppear\nc didDisappear\nhome didAppear\nc gone\nb gone\na gone");
    content()->popToRoot();
    content()->pop();
    EXPECT_EQ(told(), "") << "the root stays";
}

TEST_F(NavigationTest, APoppedScreenLivesUntilItsViewIsGoneAndPopsNothingElse)
{
    content()->setProperty("animated", true);
    push("list");
    const QPointer<KRBaseController> detail = push("detail");
    told();
    detail->backButtonClicked();
    EXPECT_EQ(content()->depth(), 2);
    EXPECT_EQ(content()->rowCount(), 3) << "its row is drawn leaving";
    EXPECT_EQ(told(), "detail willDisappear\nlist willAppear\ndetail didDisappear\nlist didAppear");
    ASSERT_TRUE(detail);

    detail->backButtonClicked();
    detail->leftItemClick();
    EXPECT_EQ(content()->depth(), 2) << "a second tap on the leaving bar";
    content()->transitionFinished(detail);
    EXPECT_EQ(told(), "detail gone");
    EXPECT_EQ(content()->rowCount(), 2);
}

TEST_F(NavigationTest, WhatIsPushedWhileAnotherIsLeavingStandsOverIt)
{
    content()->setProperty("animated", true);
    RecordingScreen *const left = push("left");
    content()->pop();
    RecordingScreen *const right = push("right");
    EXPECT_EQ(content()->top(), right);
    EXPECT_EQ(content()->rowCount(), 3);
    content()->transitionFinished(left);
    content()->transitionFinished(right);
    EXPECT_EQ(content()->rowCount(), 2) << "a transition that ended without a pop removes nothing";
}

TEST_F(NavigationTest, LeavingScreensOfAStackThatIsCoveredGoAtOnce)
{
    content()->setProperty("animated", true);
    push("detail");
    content()->pop();
    told();
    KRNavigationController *const modal = window.present(screen("modal"));
    EXPECT_EQ(content()->rowCount(), 1);

    push("below");
    content()->pop();
    EXPECT_EQ(content()->rowCount(), 1) << "nobody sees it leave";
    told();
    window.dismiss(modal);
    EXPECT_EQ(told(), "modal willDisappear\nmodal didDisappear\nhome willAppear\nhome didAppear\nmodal gone");
}

TEST_F(NavigationTest, DismissingUncoversAndFromBelowLeavesWhatIsOnTop)
{
    KRNavigationController *const lower = window.present(screen("lower"));
    KRNavigationController *const upper = window.present(screen("upper"));
    told();
    window.dismiss(lower);
    EXPECT_EQ(told(), "lower gone");
    EXPECT_EQ(window.topStack(), upper);
    upper->dismiss();
    upper->dismiss();
    EXPECT_EQ(told(), "upper willDisappear\nupper didDisappear\nhome willAppear\nhome didAppear\nupper gone");
    content()->dismiss();
    EXPECT_EQ(told(), "") << "content is not presented";
}

TEST_F(NavigationTest, WhatHappensUnderASignInAppearsOnceWhenItIsGone)
{
    KRNavigationController *const signIn = window.present(screen("entry"));
    told();
    push("trading");
    EXPECT_EQ(told(), "trading load");
    window.sideMenu()->setContent(stackOf("account"));
    EXPECT_EQ(told(), "account load\nhome gone\ntrading gone");
    push("code", signIn);
    push("detail");
    told();
    window.dismiss(signIn);
    EXPECT_EQ(told(), "code willDisappear\ncode didDisappear\ndetail willAppear\ndetail didAppear\nentry "
                      "gone\ncode gone");
}

TEST_F(NavigationTest, PresentingWhileAnotherIsBeingDismissedShowsOnlyTheNewOne)
{
    auto first = screen("first");
    first->on("willDisappear", [this] { window.present(screen("second")); });
    KRNavigationController *const stack = window.present(std::move(first));
    told();
    window.dismiss(stack);
    EXPECT_EQ(told(), "first willDisappear\nsecond load\nfirst didDisappear\nsecond willAppear\nsecond "
                      "didAppear\nfirst gone");
    EXPECT_EQ(window.presented()->count(), 1);
}

TEST_F(NavigationTest, AScreenThatLeavesWhileItAppearsIsToldToTheEnd)
{
    auto fleeting = screen("fleeting");
    fleeting->on("willAppear", [this] { content()->pop(); });
    content()->push(std::move(fleeting));
    EXPECT_EQ(
        told(),
        "fleeting load\nhome willDisappear\nfleeting willAppear\nhome didDisappear\nfleeting didAppear\n"
        "fleeting willDisappear\nhome willAppear\nfleeting didDisappear\nhome didAppear\nfleeting gone");
}

TEST_F(NavigationTest, AScreenMayAskForASignInWhileItAppears)
{
    auto guarded = screen("guarded");
    guarded->on("didAppear", [this] { window.present(screen("entry")); });
    content()->push(std::move(guarded));
    EXPECT_EQ(told(),
              "guarded load\nhome willDisappear\nguarded willAppear\nhome didDisappear\nguarded didAppear\n"
              "entry load\nguarded willDisappear\nguarded didDisappear\nentry willAppear\nentry didAppear");
}

TEST_F(NavigationTest, AContentThatPresentsWhileItLoadsKnowsItsWindowAndIsCovered)
{
    auto root = screen("commissions");
    RecordingScreen *const commissions = root.get();
    commissions->on("load", [&] { commissions->window()->present(screen("rules")); });
    window.sideMenu()->setContent(std::make_unique<KRNavigationController>(std::move(root)));
    EXPECT_EQ(told(),
              "commissions load\nrules load\nhome willDisappear\nhome didDisappear\nrules willAppear\n"
              "rules didAppear\nhome gone");
}

TEST_F(NavigationTest, ANewRootTakesEverythingOfTheOldOneAway)
{
    push("more");
    window.present(screen("modal"));
    told();
    window.setRoot(std::make_unique<KRSideMenu>(stackOf("home2"), screen("menu2")));
    EXPECT_EQ(told(), "menu2 load\nhome2 load\nmodal willDisappear\nmodal didDisappear\nhome2 willAppear\n"
                      "home2 didAppear\nmodal gone\nhome gone\nmore gone\nmenu gone");
    EXPECT_EQ(window.presented()->count(), 0);
}

TEST_F(NavigationTest, TheGuideAppearsIsCoveredAndGoes)
{
    KRWindow fresh;
    fresh.setRoot(screen("guide"));
    EXPECT_EQ(told(), "guide load\nguide willAppear\nguide didAppear");
    KRNavigationController *const pushed = fresh.present(screen("message"));
    EXPECT_EQ(told(),
              "message load\nguide willDisappear\nguide didDisappear\nmessage willAppear\nmessage didAppear");
    fresh.dismiss(pushed);
    told();
    fresh.setRoot(std::make_unique<KRSideMenu>(stackOf("first"), screen("panel")));
    EXPECT_EQ(told(), "panel load\nfirst load\nguide willDisappear\nguide didDisappear\nfirst willAppear\n"
                      "first didAppear\nguide gone");
}

TEST_F(NavigationTest, ADialogStaysWhileThingsChangeBelowItAndCoversNobody)
{
    auto shown = std::make_unique<EmptyDialog>();
    const QPointer<KRDialog> dialog = shown.get();
    window.show(std::move(shown));
    EXPECT_EQ(told(), "") << "a dialog is no screen";
    KRNavigationController *const modal = window.present(screen("modal"));
    window.dismiss(modal);
    push("detail");
    content()->popToRoot();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(window.dialogs()->count(), 1);
    dialog->cancel();
    EXPECT_EQ(window.dialogs()->count(), 0);
    settle();
    EXPECT_FALSE(dialog);
}

TEST_F(NavigationTest, OpeningTheMenuTellsItsDelegateOnceAndLeavesTheContentOnScreen)
{
    CountingMenuDelegate delegate;
    window.sideMenu()->setDelegate(delegate);
    window.sideMenu()->presentLeftMenu();
    window.sideMenu()->presentLeftMenu();
    EXPECT_TRUE(window.sideMenu()->isOpen());
    window.sideMenu()->hideMenu();
    EXPECT_FALSE(window.sideMenu()->isOpen());
    EXPECT_EQ(delegate.shown, 1);
    EXPECT_EQ(told(), "");
}

TEST_F(NavigationTest, ADismissedStackIsSeenLeavingWhereSomebodyDrawsIt)
{
    window.setProperty("animated", true);
    KRNavigationController *const lower = window.present(std::make_unique<KRBaseController>());
    KRNavigationController *const upper = window.present(std::make_unique<KRBaseController>());
    upper->dismiss();
    upper->dismiss();
    EXPECT_EQ(window.presented()->count(), 1);
    EXPECT_EQ(window.presented()->rowCount(), 2) << "it is still drawn";
    EXPECT_EQ(window.topStack(), lower);
    EXPECT_FALSE(upper->isVisible());
    window.transitionFinished(upper);
    EXPECT_EQ(window.presented()->rowCount(), 1);

    KRNavigationController *const cover = window.present(std::make_unique<KRBaseController>());
    lower->dismiss();
    EXPECT_EQ(window.presented()->rowCount(), 1) << "nobody sees what is covered";
    cover->dismiss();
    window.setRoot(std::make_unique<KRBaseController>());
    EXPECT_EQ(window.presented()->rowCount(), 0) << "a new root waits for no motion";
}

TEST_F(NavigationTest, LeavingAScreenTakesItsBannersAndTheIndicatorAway)
{
    push("detail");
    kits.calls.clear();
    Service::showErrorWithMsg("余额不足");
    Service::showWaitingProgressView();
    content()->pop();
    EXPECT_EQ(banners(), QStringList());
    EXPECT_FALSE(overlays.isWaiting());
    EXPECT_EQ(kits.calls, (QStringList{"endLogPageView PageOne", "beginLogPageView PageOne"}));
}

TEST_F(NavigationTest, TheLeftSlotHoldsWhatWasPutThereLast)
{
    RecordingScreen *const detail = push("detail");
    detail->createNavLeftItemWithTitle("取消", "common_close_gray", {}, {});
    detail->setShowBackButton(true);
    EXPECT_EQ(detail->leftItemTitle() + detail->leftItemImage(), QString());
    detail->createNavLeftItemWithTitle({}, {}, "保存", {});
    EXPECT_TRUE(detail->showBackButton()) << "a right item leaves it alone";
    detail->createNavLeftItemWithTitle("取消", {}, {}, {});
    EXPECT_FALSE(detail->showBackButton());
    detail->setShowBackButton(false);
    EXPECT_EQ(detail->leftItemTitle(), QString());
}
