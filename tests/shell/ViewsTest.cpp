#include "account/screens/TZCheckCellController.h"
#include "account/screens/TZEnsurePasswordController.h"
#include "account/screens/TZLoginController.h"
#include "account/screens/TZModifyNicknameController.h"
#include "account/screens/TZPersonalController.h"
#include "account/screens/TZRegisterController.h"
#include "account/screens/TZRegisterFinishController.h"
#include "account/screens/TZSetPasswordController.h"
#include "account/screens/TZVerifyIDController.h"
#include "account/screens/TZVerifyPhoneController.h"
#include "app/AppRouter.h"
#include "core/shell/AppDelegate.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRSideMenu.h"
#include "core/shell/KRWindow.h"
#include "core/shell/TZInfoAlertView.h"
#include "core/shell/TZPlainPageController.h"
#include "core/shell/TZTradePwdAlertView.h"
#include "core/util/Service.h"
#include "home/screens/TZHomeViewController.h"
#include "home/screens/TZMessageDetailController.h"
#include "home/screens/TZMoreViewController.h"
#include "home/screens/TZMyAccountController.h"
#include "tests/support/TestPlatform.h"
#include "trading/screens/TZBuyAndSellController.h"
#include "trading/screens/TZChooseSellStockController.h"
#include "trading/screens/TZDealAndEntrustController.h"
#include "trading/screens/TZDealDetailController.h"
#include "trading/screens/TZRealTradingController.h"
#include "trading/screens/TZSelectStockController.h"
#include "trading/screens/TZStockDetailController.h"
#include "trading/screens/TZWithdrawalsController.h"
#include "ui/Look.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QQmlApplicationEngine>

using namespace std::chrono_literals;

namespace {
std::string complaints;

void listen(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        complaints += message.toStdString() + '\n';
}

class Prompted : public QObject, public TZTradePwdAlertDelegate {
public:
    void checkTradePwd(const QString &) override {}
};
} // namespace

/// The real window offscreen: each screen comes, gets its answers, and goes, and no view complains.
class ViewsTest : public PlatformTest {
protected:
    ViewsTest()
    {
        complaints.clear();
        signIn();
        shell.didFinishLaunchingWithOptions({});
        engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
        engine->setInitialProperties({{QStringLiteral("window"), QVariant::fromValue(&window)},
                                      {QStringLiteral("overlays"), QVariant::fromValue(&overlays)}});
        engine->load(QUrl(QStringLiteral("qrc:/qt/qml/Zorvane/Ui/Main.qml")));
        pass();
    }
    void TearDown() override
    {
        engine.reset();
        settle();
        EXPECT_EQ(complaints, "");
    }
    void SetUp() override { ASSERT_FALSE(engine->rootObjects().isEmpty()); }

    /// Long enough for a screen to slide in or out.
    static void pass()
    {
        for (const QDeadlineTimer limit(400ms); !limit.hasExpired();)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    }

    void answerAll()
    {
        for (int round = 0; round < 3; ++round) {
            for (FakeTransport::Sent &sent : http.sent) {
                if (!sent.answered)
                    http.answer(sent, succeeded());
            }
            runLoop.advance(4s);
        }
    }

    void look(std::unique_ptr<KRBaseController> screen)
    {
        const std::string name = screen->metaObject()->className();
        KRNavigationController *const stack =
            window.present(std::make_unique<TZPlainPageController>(QStringLiteral("下面"), QString()));
        stack->push(std::move(screen));
        pass();
        answerAll();
        pass();
        stack->pop();
        pass();
        stack->dismiss();
        pass();
        EXPECT_EQ(std::exchange(complaints, {}), "") << name;
    }

    KRWindow window;
    AppRouter router{window};
    AppDelegate shell{window, router, [] {}};
    std::unique_ptr<QQmlApplicationEngine> engine = std::make_unique<QQmlApplicationEngine>();
};

TEST_F(ViewsTest, GuideThenHomeWithBothFacesThenTheMenuWithItsPages)
{
    auto *const guide = qobject_cast<TZGuideController *>(window.root());
    ASSERT_TRUE(guide);
    for (int page = 0; page < 3; ++page) {
        guide->toNextPage();
        pass();
    }
    guide->removeGuideView();
    pass();
    answerAll();
    pass();
    settings.values.remove(QStringLiteral("user"));
    router.showHome(*window.topStack()->top());
    pass();
    answerAll();
    pass();
    window.sideMenu()->presentLeftMenu();
    pass();
    router.showCommissions(*window.topStack()->top());
    pass();
}

TEST_F(ViewsTest, SignIn)
{
    look(std::make_unique<TZCheckCellController>(router));
    look(std::make_unique<TZLoginController>());
    look(std::make_unique<TZRegisterController>(router));
    look(std::make_unique<TZRegisterFinishController>());
}

TEST_F(ViewsTest, PersonalPageNicknameAndTradePassword)
{
    look(std::make_unique<TZPersonalController>());
    look(std::make_unique<TZModifyNicknameController>());
    look(std::make_unique<TZVerifyPhoneController>());
    look(std::make_unique<TZVerifyIDController>());
    look(std::make_unique<TZSetPasswordController>());
    look(std::make_unique<TZEnsurePasswordController>());
}

TEST_F(ViewsTest, ANicknameIsCutWhenTheInputMethodHasEnded)
{
    auto nickname = std::make_unique<TZModifyNicknameController>();
    const TZModifyNicknameController *const screen = nickname.get();
    window.present(std::move(nickname));
    pass();
    const auto compose = [](const QString &commit, const QString &marked) {
        QInputMethodEvent event(marked, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
    };
    compose({}, QStringLiteral("yi'er'san'si'wu'liu"));
    EXPECT_EQ(screen->nick(), QString());
    compose(QStringLiteral("一二三四五六七八九十百千"), QStringLiteral("wan"));
    EXPECT_EQ(screen->nick(), QStringLiteral("一二三四五六七八九十百千"));
    compose({}, {});
    EXPECT_EQ(screen->nick(), QStringLiteral("一二三四五六七八九十"));
    EXPECT_EQ(QGuiApplication::focusObject()->property("text").toString(), screen->nick());
    compose(QStringLiteral("万"), {});
    EXPECT_EQ(screen->nick(), QStringLiteral("一二三四五六七八九十"));
    EXPECT_EQ(QGuiApplication::focusObject()->property("text").toString(), screen->nick());
}

TEST_F(ViewsTest, Home)
{
    look(std::make_unique<TZHomeViewController>(router));
    look(std::make_unique<TZMyAccountController>(router));
    look(std::make_unique<TZMoreViewController>(router));
    look(std::make_unique<TZMessageDetailController>(router, TZMessageModel{}, QStringLiteral("remote")));
    look(std::make_unique<TZPlainPageController>(QStringLiteral("充值"),
                                                 QStringLiteral("在这里为您的账户充值。")));
}

TEST_F(ViewsTest, Trading)
{
    look(std::make_unique<TZRealTradingController>(router));
    look(std::make_unique<TZBuyAndSellController>(OrderSide::Buy));
    look(std::make_unique<TZBuyAndSellController>(OrderSide::Sell));
    look(std::make_unique<TZChooseSellStockController>());
    look(std::make_unique<TZWithdrawalsController>());
    look(std::make_unique<TZDealAndEntrustController>());
    look(std::make_unique<TZDealDetailController>(TZDealDetailController::dealTitle));
    look(std::make_unique<TZDealDetailController>(TZDealDetailController::entrustTitle));
    look(std::make_unique<TZSelectStockController>(nullptr, nullptr));
    look(std::make_unique<TZStockDetailController>(TZZorvanePageStocksModel{}));
}

TEST_F(ViewsTest, DialogsBannersAndTheIndicator)
{
    window.show(std::make_unique<TZInfoAlertView>(
        TZInfoAlertViewModel{QStringLiteral("提示"), QStringLiteral("确定？"), QStringLiteral("取消"),
                             QStringLiteral("确定")},
        OwnedAction(), OwnedAction()));
    pass();
    Prompted owner;
    TZTradePwdAlertView *const prompt = TZTradePwdAlertView::showAlertView(window, owner, owner);
    pass();
    prompt->setInputTextField(QStringLiteral("123456"));
    pass();
    runLoop.advance(1s);
    pass();
    EXPECT_EQ(window.dialogs()->count(), 1);
    qobject_cast<KRDialog *>(window.dialogs()->at(0))->cancel();
    Service::showSuccessWithMsg(QStringLiteral("设置成功"));
    Service::showErrorWithMsg(QStringLiteral("加载失败"));
    Service::showWaitingProgressView();
    runLoop.advance(1s);
    pass();
    Service::hideWaitingProgressView();
    runLoop.advance(3s);
    pass();
}

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("TZ", "Asia/Shanghai");
    const QGuiApplication application(argc, argv);
    installLook();
    qInstallMessageHandler(listen);
    return RUN_ALL_TESTS();
}
