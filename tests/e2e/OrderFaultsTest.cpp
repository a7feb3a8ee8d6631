#include "app/platform/QtApplicationInfo.h"
#include "app/platform/QtHttpTransport.h"
#include "core/session/SettingsKeys.h"
#include "core/session/TZUserTool.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRSideMenu.h"
#include "core/shell/KRWindow.h"
#include "core/shell/TZInfoAlertView.h"
#include "tests/support/TestPlatform.h"
#include "tour/Hand.h"
#include "tour/SandboxProcess.h"
#include "trading/api/TZStockInfoModel.h"
#include "trading/screens/TZBuyAndSellController.h"

using namespace std::chrono_literals;

namespace {
const QString cell = QStringLiteral("13800138000");

/// The real transport with less patience, and a count of what is on its way.
class HastyTransport : public HttpTransport {
public:
    explicit HastyTransport(HttpTransport &realTransport) : transport(realTransport) {}

    void send(const HttpRequest &request, std::function<void(const HttpOutcome &)> done) override
    {
        HttpRequest hasty = request;
        hasty.timeout = 400ms;
        ++onTheirWay;
        transport.send(hasty, [this, done = std::move(done)](const HttpOutcome &outcome) {
            --onTheirWay;
            done(outcome);
        });
    }

    int onTheirWay = 0;

private:
    HttpTransport &transport;
};

struct Fault {
    QString orders;
    QString delay;
    /// What befalls the first reading of today's entrusts.
    QString entrusts;
};

const QList<Fault> faults{{"drop-before", "0", ""},
                          {"drop-after", "0", ""},
                          {"status", "0", ""},
                          {"garbage", "0", ""},
                          {"content-type", "0", ""},
                          {"truncate", "0", ""},
                          {"delay", "600", ""},
                          {"delay", "50", ""},
                          {"drop-after", "0", "drop-before"},
                          {"drop-before", "0", "garbage"},
                          {"delay-before", "600", ""}};
} // namespace

/// Order entry of the real client over the real transport against a sandbox; only time is simulated.
class OrderFaultsTest : public testing::Test {
protected:
    OrderFaultsTest()
    {
        settings.setValue(SettingsKeys::networkStatus, true);
        settings.setValue(SettingsKeys::needTradePwd, true);
        window.setRoot(std::make_unique<KRSideMenu>(
            std::make_unique<KRNavigationController>(std::make_unique<KRBaseController>()),
            std::make_unique<KRBaseController>()));
        window.makeKeyAndVisible();
        signIn();
        sandbox.post("deposit", {{"user", "1"}, {"amount", "1000000"}});
        ordersBefore = ordersInTheBooks();
        open();
    }
    ~OrderFaultsTest() override { quiet(); }

    void quiet()
    {
        Hand::wait([this] { return http.onTheirWay == 0; });
    }

    void signIn()
    {
        TZUserTool::checkCellWithCell(cell, {}, {});
        Hand::wait([this] { return !sandbox.codeFor(cell).isEmpty() && http.onTheirWay == 0; });
        TZUserTool::verifyCodeWithParam({{"bizCode", "1002"}, {"userInput", sandbox.codeFor(cell)}}, {}, {});
        quiet();
    }

    QVariantList orders()
    {
        const QVariantList users = sandbox.state().value("users").toList();
        for (const QVariant &user : users) {
            if (user.toMap().value("cell") == cell)
                return user.toMap().value("orders").toList();
        }
        return {};
    }
    int ordersInTheBooks() { return static_cast<int>(orders().size()); }

    void open()
    {
        auto entry = std::make_unique<TZBuyAndSellController>(OrderSide::Buy);
        screen = entry.get();
        window.topStack()->push(std::move(entry));
        screen->chooseStock({QStringLiteral("600001"), QStringLiteral("stock"), {}});
        quiet();
    }
    void reopen()
    {
        window.topStack()->pop();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        open();
    }

    template <typename Dialog> Dialog *dialog()
    {
        return window.dialogs()->count() == 0 ? nullptr : dynamic_cast<Dialog *>(window.dialogs()->at(0));
    }
    TZInfoAlertView *alert() { return dialog<TZInfoAlertView>(); }
    /// For half a second after news it takes no tap.
    TZInfoAlertView *readAlert()
    {
        runLoop.advance(500ms);
        return alert();
    }

    void submit(const QString &price, const QString &shares)
    {
        screen->editPrice(price);
        runLoop.advance(100ms);
        screen->editQuantity(shares);
        screen->submit();
        sendWhatWasSubmitted();
    }
    void sendWhatWasSubmitted()
    {
        if (auto *const prompt = dialog<TZTradePwdAlertView>()) {
            prompt->setInputTextField(QStringLiteral("123456"));
            runLoop.advance(1s);
        } else {
            runLoop.advance(500ms);
        }
        quiet();
    }

    void sendAgain()
    {
        readAlert()->leftBtnClick();
        quiet();
        sendWhatWasSubmitted();
    }

    /// Does what a user does who wants this order once and believes what the client says. False when that
    /// leads nowhere.
    bool place(const QString &price, const QString &shares, bool leavesMeanwhile)
    {
        const int before = ordersInTheBooks();
        submit(price, shares);
        for (int step = 0; step < 30; ++step) {
            const QString said = alert() ? alert()->titleText() : QString();
            if (said == "委托挂单成功" || said == "已找到这笔委托") {
                alert()->cancel();
                return true;
            }
            if (said == "未找到这笔委托") {
                readAlert()->leftBtnClick();
                // As long as a person takes to think about it, some of what is late arrives.
                Hand::wait([&] { return ordersInTheBooks() > before; }, 400ms);
                submit(price, shares);
                if (!alert() || alert()->titleText() != "确认再次提交")
                    return false;
                sendAgain();
            } else if (said == "委托结果未知" && std::exchange(leavesMeanwhile, false)) {
                alert()->cancel();
                reopen();
                submit(price, shares);
            } else if (said == "确认再次提交") {
                alert()->rightBtnClick();
            } else if (said == "委托结果未知" && !alert()->leftTitle().isEmpty()) {
                readAlert()->rightBtnClick();
            } else if (said.isEmpty()) {
                submit(price, shares);
            } else {
                runLoop.advance(3s);
            }
            quiet();
        }
        return false;
    }

    SandboxProcess sandbox;
    QtHttpTransport realHttp{DeveloperTrust{QSslCertificate::fromPath(sandbox.authority()), false}};
    HastyTransport http{realHttp};
    MemorySettings settings;
    FakeReachability reachability;
    ManualRunLoop runLoop;
    RecordingKits kits;
    QtApplicationInfo application{sandbox.baseUrl(), QString()};
    NotificationCenter notifications;
    OverlayHost overlays;
    const Platform platform{http, settings, reachability, runLoop,     kits,          kits,    kits,
                            kits, kits,     kits,         application, notifications, overlays};
    struct Installation {
        explicit Installation(const Platform *used) { Platform::install(used); }
        ~Installation() { Platform::install(nullptr); }
    } installation{&platform};
    KRWindow window;
    TZBuyAndSellController *screen = nullptr;
    int ordersBefore = 0;
};

TEST_F(OrderFaultsTest, FiftyLostOrLateAnswersAndExactlyOneOrderPerIntent)
{
    constexpr int intents = 50;
    const double basePrice = screen->currentPrice().toDouble() * 0.96;
    for (int intent = 0; intent < intents; ++intent) {
        const Fault &fault = faults.at(intent % faults.size());
        sandbox.post("fault",
                     {{"kind", fault.orders}, {"delay", fault.delay}, {"path", "entrust/createBuy"}});
        if (!fault.entrusts.isEmpty())
            sandbox.post("fault", {{"kind", fault.entrusts}, {"path", "entrustsToday"}});
        // The same three orders over and over: nothing but what is known tells one from the other.
        const QString price = QString::number(basePrice + intent % 3 * 0.01, 'f', 2);
        ASSERT_TRUE(place(price, QStringLiteral("100"), intent % 7 == 0))
            << intent << fault.orders.toStdString()
            << (alert() ? alert()->titleText() : QString()).toStdString();
        EXPECT_EQ(ordersInTheBooks() - ordersBefore, intent + 1) << fault.orders.toStdString();
        EXPECT_TRUE(sandbox.state().value("faults").toList().isEmpty()) << "every fault has struck";
    }
    EXPECT_EQ(ordersInTheBooks() - ordersBefore, intents);
    EXPECT_EQ(sandbox.unknownRequests(), 0);
}

TEST_F(OrderFaultsTest, WhoeverInsistsIsToldOfEveryOrderThatStands)
{
    // The first stands and the entrusts cannot be read; the second is lost on the way.
    sandbox.post("fault", {{"kind", "drop-after"}, {"path", "entrust/createBuy"}});
    sandbox.post("fault", {{"kind", "drop-before"}, {"path", "entrust/createBuy"}});
    sandbox.post("fault", {{"kind", "garbage"}, {"path", "entrustsToday"}});
    sandbox.post("fault", {{"kind", "garbage"}, {"path", "entrustsToday"}});
    const QString price = QString::number(screen->currentPrice().toDouble() * 0.96, 'f', 2);
    submit(price, QStringLiteral("100"));
    ASSERT_EQ(alert()->titleText(), "委托结果未知");
    alert()->cancel();
    submit(price, QStringLiteral("100"));
    ASSERT_EQ(alert()->titleText(), "确认再次提交");
    sendAgain();
    ASSERT_EQ(alert()->leftTitle(), "再次提交") << "once more unreadable";
    sendAgain();
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->titleText(), "已找到这笔委托");
    EXPECT_TRUE(alert()->ensureText().contains("另有 1 次提交没有找到"));
    EXPECT_EQ(ordersInTheBooks() - ordersBefore, 1);
}
