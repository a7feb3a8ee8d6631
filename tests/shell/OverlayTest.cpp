#include "core/shell/KRNavigationController.h"
#include "core/shell/KRWindow.h"
#include "core/shell/MVNoNetView.h"
#include "core/shell/TZBaseTableViewController.h"
#include "core/shell/TZInfoAlertView.h"
#include "core/util/Service.h"
#include "tests/support/TestPlatform.h"

#include <QPointer>

using namespace std::chrono_literals;

class OverlayTest : public PlatformTest {
protected:
    /// The banners as "text" or, once they fade, "(text)".
    QString shown()
    {
        QStringList texts;
        for (const MVNoticeView &banner : overlays.banners()->rows())
            texts << (banner.fading ? QStringLiteral("(%1)") : QStringLiteral("%1")).arg(banner.content);
        return texts.join(u' ');
    }

    const QString first = "一";
    const QString second = "二";
};

TEST_F(OverlayTest, AnErrorReplacesAnotherAtOnceFadesAfterTwoSecondsAndIsGoneHalfASecondLater)
{
    Service::showErrorWithMsg(second);
    runLoop.advance(1900ms);
    Service::showErrorWithMsg(first);
    EXPECT_EQ(shown(), "一");
    EXPECT_FALSE(overlays.banners()->at(0).success);
    runLoop.advance(1999ms);
    EXPECT_EQ(shown(), "一");
    runLoop.advance(1ms);
    EXPECT_EQ(shown(), "(一)");
    runLoop.advance(499ms);
    EXPECT_EQ(shown(), "(一)");
    runLoop.advance(1ms);
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(runLoop.activeTimers(), 0);
}

TEST_F(OverlayTest, EachSuccessComesHalfASecondLaterAndGoesWithoutRedrawingTheOther)
{
    int resets = 0;
    QObject::connect(overlays.banners(), &QAbstractItemModel::modelReset, [&resets] { ++resets; });
    Service::showSuccessWithMsg(first);
    runLoop.advance(200ms);
    Service::showSuccessWithMsg(second);
    runLoop.advance(299ms);
    EXPECT_EQ(shown(), "");
    runLoop.advance(1ms);
    EXPECT_EQ(shown(), "一");
    EXPECT_TRUE(overlays.banners()->at(0).success);
    runLoop.advance(200ms);
    EXPECT_EQ(shown(), "一 二");
    resets = 0;
    runLoop.advance(1800ms);
    EXPECT_EQ(shown(), "(一) 二");
    runLoop.advance(500ms);
    EXPECT_EQ(shown(), "(二)");
    EXPECT_EQ(resets, 0);
    runLoop.advance(200ms);
    EXPECT_EQ(shown(), "");
}

TEST_F(OverlayTest, HidingTakesWhatIsShownAndLeavesWhatIsPending)
{
    Service::showSuccessWithMsg(second);
    overlays.showBanner(BannerKind::Error, first);
    Service::hideAlertView();
    EXPECT_EQ(shown(), QString());
    runLoop.advance(500ms);
    EXPECT_EQ(shown(), second);
}

TEST_F(OverlayTest, ThereIsOneWaitingIndicatorAndFiveSecondsOfItAreLong)
{
    int changes = 0;
    QObject::connect(&overlays, &OverlayHost::waitingChanged, [&changes] { ++changes; });
    Service::hideWaitingProgressView();
    EXPECT_EQ(changes, 0) << "nothing to hide";
    Service::showWaitingProgressView();
    EXPECT_EQ(overlays.waitingStatus(), "加载中...");
    runLoop.advance(4s);
    Service::showWaitingProgressView();
    EXPECT_FALSE(overlays.isWaitingLong());
    runLoop.advance(1s);
    EXPECT_TRUE(overlays.isWaitingLong());
    Service::hideWaitingProgressView();
    EXPECT_FALSE(overlays.isWaiting() || overlays.isWaitingLong());
    Service::showWaitingProgressView();
    EXPECT_FALSE(overlays.isWaitingLong());
}

TEST_F(OverlayTest, AnAlertsButtonRunsItsActionOnceAfterTheAlertIsGoneUnlessItsOwnerIs)
{
    for (const bool ownerGone : {false, true}) {
        KRWindow window;
        auto owner = std::make_unique<QObject>();
        QList<int> standing;
        auto alert = std::make_unique<TZInfoAlertView>(
            TZInfoAlertViewModel{}, OwnedAction(),
            OwnedAction{owner.get(), [&] { standing.append(window.dialogs()->count()); }});
        TZInfoAlertView *const shownAlert = alert.get();
        window.show(std::move(alert));
        if (ownerGone)
            owner.reset();
        shownAlert->rightBtnClick();
        shownAlert->rightBtnClick();
        shownAlert->leftBtnClick();
        EXPECT_EQ(standing, ownerGone ? QList<int>() : QList<int>{0});
        EXPECT_EQ(window.dialogs()->count(), 0);
    }
}

namespace {
class Reloading : public QObject, public MVNoNetViewDelegate {
public:
    void reloadData() override { ++reloads; }
    int reloads = 0;
};

class ListScreen : public TZBaseTableViewController {
public:
    void refreshData() override
    {
        ++refreshes;
        endRefreshingAfter(15s);
    }
    void loadMoreData() override { ++loads; }
    using TZBaseTableViewController::endRefreshing;
    int refreshes = 0;
    int loads = 0;
};
} // namespace

TEST_F(OverlayTest, TheReloadButtonCallsOnlyADelegateThatCanReload)
{
    Reloading fitting;
    MVNoNetView(fitting).clickReloadBtn();
    EXPECT_EQ(fitting.reloads, 1);
    QObject unfitting;
    MVNoNetView(unfitting).clickReloadBtn();
}

TEST_F(OverlayTest, ARefreshWithoutAnAnswerEndsAfterFifteenSeconds)
{
    ListScreen list;
    list.beginRefreshing();
    list.beginRefreshing();
    list.beginLoadingMore();
    EXPECT_EQ(list.refreshes, 1);
    EXPECT_EQ(list.loads, 0) << "not while refreshing";
    runLoop.advance(14999ms);
    EXPECT_TRUE(list.refreshing());
    runLoop.advance(1ms);
    EXPECT_FALSE(list.refreshing());
    list.beginRefreshing();
    list.endRefreshing();
    EXPECT_EQ(runLoop.activeTimers(), 0) << "an answer ends the guard too";
    list.beginLoadingMore();
    EXPECT_EQ(list.loads, 1);
    list.beginRefreshing();
    list.viewDidDisappear();
    EXPECT_FALSE(list.refreshing());
    EXPECT_EQ(runLoop.activeTimers(), 0) << "no timer of a list that is not seen";
}

TEST_F(OverlayTest, AListScreenEndsEditingAndHidesTheIndicatorWhenItHasDisappearedAndWhenItIsDestroyed)
{
    KRWindow window;
    auto root = std::make_unique<ListScreen>();
    ListScreen *const list = root.get();
    int ended = 0;
    QObject::connect(list, &KRBaseController::editingEnded, [&ended] { ++ended; });
    QObject::connect(&window, &KRWindow::editingEnded, [&ended] { ended += 10; });
    KRNavigationController *const stack = window.present(std::move(root));
    list->scrollViewWillBeginDragging();
    EXPECT_EQ(ended, 10);
    Service::showErrorWithMsg(first);
    list->viewWillDisappear();
    EXPECT_EQ(ended, 11);
    EXPECT_EQ(shown(), "");
    Service::showWaitingProgressView();
    list->viewDidDisappear();
    EXPECT_FALSE(overlays.isWaiting());
    stack->dismiss();
    Service::showWaitingProgressView();
    settle();
    EXPECT_FALSE(overlays.isWaiting());
}
