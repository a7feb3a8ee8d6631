#include "core/session/NotificationNames.h"
#include "core/session/SettingsKeys.h"
#include "core/shell/AppDelegate.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRWindow.h"
#include "core/util/Service.h"
#include "tests/support/RecordingRouter.h"
#include "tests/support/TestPlatform.h"

namespace {
QVariantMap message(const QVariant &pageId, const QVariant &data)
{
    return {{"pageId", pageId}, {"data", data}};
}

const QVariantMap fields{{"id", "7"}, {"title", "通知"}};
} // namespace

/// The whole start-up as one list of calls: the kits', the router's, the settings' and the network's.
class StartTest : public PlatformTest {
protected:
    StartTest()
    {
        application.version = "100";
        settings.values.insert(SettingsKeys::bundleVersion, "100");
        QObject::connect(&window, &KRWindow::visibleChanged, [this] { kits.calls << "window visible"; });
        QObject::connect(&window, &KRWindow::rootChanged, [this] { kits.calls << "guide"; });
        QObject::connect(&notifications, &NotificationCenter::posted, [this](const QString &name) {
            kits.calls << QStringLiteral("post ") + name;
            needTradePwdAtPost = settings.values.contains(SettingsKeys::needTradePwd);
        });
    }

    void start(const QVariantMap &options = {}) { shell.didFinishLaunchingWithOptions(options); }

    QString calls()
    {
        QStringList lines = std::exchange(kits.calls, {});
        for (QString &line : lines)
            line = line.trimmed();
        return lines.join(u'\n');
    }

    KRWindow window;
    RecordingRouter router;
    bool needTradePwdAtPost = false;
    AppDelegate shell{window, router, [this] { kits.calls << "stock table refresh"; }};
};

TEST_F(StartTest, StartUpFollowsItsOrder)
{
    signIn();
    start();
    EXPECT_EQ(calls().toStdString(), "window visible\n"
                                     "startKit\n"
                                     "startKit\n"
                                     "startAnalytics  1\n"
                                     "checkUpdate\n"
                                     "hideTargetsNotInstalled\n"
                                     "registerTarget WeChat\n"
                                     "registerTarget QQ\n"
                                     "registerTarget Weibo\n"
                                     "stock table refresh\n"
                                     "startPush\n"
                                     "registerForTypes 7\n"
                                     "setLogEnabled 1\n"
                                     "setAlias t0ken api_token");
    EXPECT_EQ(router.calls, QStringList{"setupSideMenuController"});
    EXPECT_EQ(settings.values.value(SettingsKeys::needTradePwd), true);
    EXPECT_EQ(settings.values.value(SettingsKeys::networkStatus), true);
    EXPECT_GT(settings.flushes, 0);
    EXPECT_TRUE(shell.isReachable);
}

TEST_F(StartTest, TheTwoPushActionsAreOfferedFromSystemEightOn)
{
    application.system = 8.0;
    start();
    ASSERT_EQ(kits.categories.size(), 1);
    const auto &[identifier, actions] = kits.categories.first();
    EXPECT_EQ(identifier, "category1");
    ASSERT_EQ(actions.size(), 2);
    const auto &[accept, reject] = std::pair(actions.at(0), actions.at(1));
    EXPECT_EQ(accept.identifier + u' ' + accept.title, "action1_identifier Accept");
    EXPECT_TRUE(accept.opensClient);
    EXPECT_EQ(reject.identifier + u' ' + reject.title, "action2_identifier Reject");
    EXPECT_TRUE(!reject.opensClient && reject.needsUnlock && reject.destructive);

    application.system = 7.1;
    start();
    EXPECT_TRUE(kits.categories.isEmpty());
    EXPECT_EQ(kits.calls.filter("registerForTypes 7").size(), 2);
}

TEST_F(StartTest, TheGuideIsShownOncePerBuildVersion)
{
    settings.values.remove(SettingsKeys::bundleVersion);
    start();
    auto *const guide = qobject_cast<TZGuideController *>(window.root());
    ASSERT_TRUE(guide);
    EXPECT_TRUE(router.calls.isEmpty());
    EXPECT_EQ(settings.values.value(SettingsKeys::bundleVersion), "100");

    guide->removeGuideView();
    guide->removeGuideView();
    EXPECT_EQ(router.calls, QStringList{"setupSideMenuController"}) << "a second tap does nothing";

    Service::logout();
    KRWindow next;
    AppDelegate again(next, router, [] {});
    again.didFinishLaunchingWithOptions({});
    EXPECT_EQ(next.root(), nullptr) << "signing out does not bring the guide back";

    application.version = "101";
    KRWindow updated;
    AppDelegate afterUpdate(updated, router, [] {});
    afterUpdate.didFinishLaunchingWithOptions({});
    EXPECT_TRUE(qobject_cast<TZGuideController *>(updated.root()));
}

TEST_F(StartTest, TheGuidePagesEndAtTheFirstAndTheLast)
{
    TZGuideController guide(shell);
    EXPECT_EQ(guide.pages().join(u' '), "guide1 guide2 guide3 guide4");
    guide.toBeforePage();
    EXPECT_EQ(guide.page(), 0);
    for (int tap = 0; tap < 5; ++tap)
        guide.toNextPage();
    EXPECT_TRUE(guide.isLastPage());
    guide.toBeforePage();
    EXPECT_EQ(guide.page(), 2);
    for (const auto &[height, pages] : {std::pair(480, "guide1_4 guide2_4 guide3_4 guide4_4"),
                                        std::pair(568, "guide1 guide2 guide3 guide4")}) {
        guide.setProperty("screenHeight", height);
        EXPECT_EQ(guide.pages().join(u' '), pages);
    }
}

TEST_F(StartTest, OpeningTheMenuOfEveryFrameEndsEditing)
{
    int ended = 0;
    QObject::connect(&window, &KRWindow::editingEnded, [&ended] { ++ended; });
    for (int frame = 1; frame <= 2; ++frame) {
        auto home = std::make_unique<KRNavigationController>(std::make_unique<KRBaseController>());
        window.setRoot(std::make_unique<KRSideMenu>(std::move(home), std::make_unique<KRBaseController>()));
        window.sideMenu()->presentLeftMenu();
        EXPECT_EQ(ended, frame);
    }
}

TEST_F(StartTest, WithoutANetworkItSaysSoAsksForNoStocksAndGoesOn)
{
    reachability.status = NetworkStatus::NotReachable;
    start();
    EXPECT_EQ(banners(), QStringList{"网络异常"});
    EXPECT_FALSE(kits.calls.contains("stock table refresh"));
    EXPECT_EQ(settings.values.value(SettingsKeys::networkStatus), false);
    EXPECT_EQ(router.calls, QStringList{"setupSideMenuController"});
    EXPECT_FALSE(shell.isReachable);
}

TEST_F(StartTest, EachChangeOfTheNetworkIsKeptAsLongAsTheShellIsThere)
{
    auto passing = std::make_unique<AppDelegate>(window, router, [] {});
    passing->didFinishLaunchingWithOptions({});
    for (const auto &[status, reachable] :
         {std::pair(NetworkStatus::NotReachable, false), std::pair(NetworkStatus::ReachableViaWWAN, true),
          std::pair(NetworkStatus::NotReachable, false), std::pair(NetworkStatus::ReachableViaWiFi, true)}) {
        overlays.hideBanners();
        reachability.change(status);
        EXPECT_EQ(settings.values.value(SettingsKeys::networkStatus), reachable);
        EXPECT_EQ(passing->isReachable, reachable);
        EXPECT_EQ(banners().size(), reachable ? 0 : 1);
    }
    EXPECT_EQ(kits.calls.filter("post kNetworkReachabilityChangedNotification").size(), 4);
    passing.reset();
    reachability.change(NetworkStatus::NotReachable);
    kits.push(message(2, fields));
    EXPECT_EQ(banners(), QStringList());
    EXPECT_FALSE(router.calls.contains("presentMessageDetail"));
}

TEST_F(StartTest, TheAliasFollowsTheStoredUser)
{
    const std::pair<QVariant, QStringList> cases[] = {
        {QVariant(), {}},
        {QVariantMap{{"api_token", "abc"}}, {"setAlias abc api_token"}},
        {QVariantMap{{"api_token", QString()}}, {"setAlias off_line api_token"}},
        {QVariantMap{{"cell", "13800138000"}}, {"setAlias off_line api_token"}},
    };
    for (const auto &[user, aliases] : cases) {
        settings.values.remove(SettingsKeys::user);
        if (user.isValid())
            settings.values.insert(SettingsKeys::user, user);
        kits.calls.clear();
        AppDelegate fresh(window, router, [] {});
        fresh.didFinishLaunchingWithOptions({});
        EXPECT_EQ(kits.calls.filter("setAlias"), aliases);
    }
}

TEST_F(StartTest, TheMessageThatStartedTheClientIsPostedAndOpensNothing)
{
    settings.values.remove(SettingsKeys::needTradePwd);
    start({{AppDelegate::remoteNotificationKey, message(2, fields)}});
    EXPECT_TRUE(kits.calls.contains("post remote_msg"));
    EXPECT_FALSE(needTradePwdAtPost) << "posted before the flag is set";
    EXPECT_FALSE(router.calls.contains("presentMessageDetail"));

    kits.push(message(2, fields));
    EXPECT_TRUE(router.calls.contains("presentMessageDetail")) << "later ones do";
}

TEST_F(StartTest, AMessageOpensWhatItsPageNames)
{
    start();
    const QString text = R"({"id":"7","title":"通知"})";
    struct Case {
        QVariant pageId;
        QVariant data;
        QString opened;
    };
    const QString none;
    const QString msg = "presentMessageDetail";
    const QString stock = "presentOrderDetail";
    const Case cases[] = {
        {2, fields, msg},
        {2, text, msg},
        {"2", fields, msg},
        {3, fields, stock},
        {3, text, stock},
        {1, fields, none},
        {4, fields, none},
        {QVariant(), fields, none},
        {QVariantList{2}, fields, none},
        {2, QVariant(), none},
        {2, QVariant::fromValue(nullptr), none},
        {2, QVariantList{fields}, none},
        {2, "{\"id\":", none},
        {3, "[1]", none},
        {3, QString(), none},
    };
    for (const Case &push : cases) {
        router.calls.clear();
        router.pushed.clear();
        kits.push(message(push.pageId, push.data));
        const QString described = push.pageId.toString() + u' ' + push.data.toString();
        EXPECT_EQ(router.calls.join(u' '), push.opened) << described.toStdString();
        EXPECT_EQ(router.pushed, push.opened.isEmpty() ? QVariantMap() : fields) << described.toStdString();
    }
    kits.push({});
}

TEST_F(StartTest, ThePushServiceHearsOfAMessageBeforeAnyoneElseAndTheKitsOfTokensAndUrls)
{
    start();
    kits.calls.clear();
    kits.push(message(3, fields));
    shell.didRegisterForRemoteNotificationsWithDeviceToken("d3vice");
    EXPECT_FALSE(shell.openURL("wx://back"));
    EXPECT_FALSE(shell.handleOpenURL("qq://back"));
    EXPECT_EQ(kits.calls,
              (QStringList{"didReceiveRemoteNotification", "post remote_stock", "registerDeviceToken d3vice",
                           "handleOpenUrl wx://back", "handleOpenUrl qq://back"}));
}
