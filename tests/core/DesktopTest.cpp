#include "app/platform/DesktopShare.h"
#include "app/platform/MailFeedback.h"
#include "app/platform/QtApplicationInfo.h"
#include "app/platform/QtReachability.h"
#include "app/platform/QtRunLoop.h"
#include "tests/support/TestPlatform.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>

using namespace std::chrono_literals;

namespace {

void runFor(std::chrono::milliseconds time)
{
    for (const QDeadlineTimer limit(time, Qt::PreciseTimer); !limit.hasExpired();)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
}

TEST(QtRunLoopTest, FiresOnTimeAndEndsWithItsHandle)
{
    QtRunLoop loop;
    QElapsedTimer watch;
    watch.start();
    qint64 firedAt = -1;
    int ticks = 0;
    bool ended = false;
    const auto once = loop.start(100ms, Repeat::Once, [&] { firedAt = watch.elapsed(); });
    const auto forever = loop.start(20ms, Repeat::Forever, [&] { ++ticks; });
    auto dropped = loop.start(50ms, Repeat::Once, [&] { ended = true; });
    dropped.reset();
    runFor(170ms);
    // Never early; how late, and how often, depends on what else the machine does.
    EXPECT_GE(firedAt, 99);
    EXPECT_GE(ticks, 1);
    EXPECT_LE(ticks, watch.elapsed() / 20);
    EXPECT_FALSE(ended);
}

TEST(QtRunLoopTest, LetsAFunctionEndOrReplaceItsOwnTimer)
{
    QtRunLoop loop;
    int ticks = 0;
    std::unique_ptr<RunLoopTimer> timer;
    timer = loop.start(5ms, Repeat::Forever, [&] {
        if (++ticks == 3)
            timer = loop.start(5ms, Repeat::Once, [&] {
                ticks += 100;
                timer.reset();
            });
    });
    runFor(80ms);
    EXPECT_EQ(ticks, 103);
}

using DesktopKitsTest = PlatformTest;

TEST_F(DesktopKitsTest, SharingPutsTheTextOnThePasteboardAndIntoAMailDraft)
{
    DesktopShare share(kits, kits);
    share.share({"一起炒股 & 赚", "标题?", {}, "https://x.test/?a=1&b=2"});
    EXPECT_EQ(
        kits.calls,
        QStringList({"setText 一起炒股 & 赚 标题? https://x.test/?a=1&b=2",
                     "open mailto:?subject=%E6%A0%87%E9%A2%98%3F&body=%E4%B8%80%E8%B5%B7%E7%82%92%E8%82%"
                     "A1%20%26%20%E8%B5%9A%0D%0Ahttps%3A%2F%2Fx.test%2F%3Fa%3D1%26b%3D2"}));

    runLoop.advance(500ms);
    EXPECT_EQ(banners(), QStringList("分享内容已复制"));
}

TEST_F(DesktopKitsTest, FeedbackIsAMailDraftOrElseTheAddress)
{
    MailFeedback feedback(kits, kits, "help@zorvane.example", "a b");
    const QString draft = "open mailto:help@zorvane.example?subject=a%20b&body=";
    feedback.show();
    EXPECT_EQ(kits.calls, QStringList(draft));
    EXPECT_EQ(banners(), QStringList());
    kits.opens = false;
    kits.calls.clear();
    feedback.show();
    EXPECT_EQ(kits.calls, QStringList({draft, "setText help@zorvane.example"}));
    runLoop.advance(500ms);
    EXPECT_EQ(banners(), QStringList("反馈邮箱已复制：help@zorvane.example"));
}

TEST(QtReachabilityTest, AlwaysReachesAServiceOnThisMachine)
{
    for (const char *url : {"https://127.0.0.1:8443/", "https://localhost/", "https://[::1]/"}) {
        QtReachability reachability{QUrl(QLatin1String(url))};
        reachability.start([](NetworkStatus) { FAIL(); });
        EXPECT_EQ(reachability.currentStatus(), NetworkStatus::ReachableViaWiFi) << url;
    }
}

TEST(QtApplicationInfoTest, KnowsTheVersionsOfTheProgramAndOfTheSystem)
{
    const QtApplicationInfo information("https://service.test/", {});
    EXPECT_FALSE(information.buildVersion().isEmpty());
    EXPECT_GT(information.systemVersion(), 0);
}

} // namespace
