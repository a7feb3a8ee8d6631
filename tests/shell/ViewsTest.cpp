#include "account/screens/TZModifyNicknameController.h"
#include "account/screens/TZRegisterController.h"
#include "core/session/DisplaySettings.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRSideMenu.h"
#include "core/shell/TZInfoAlertView.h"
#include "core/shell/TZPlainPageController.h"
#include "core/shell/TZTradePwdAlertView.h"
#include "core/util/Service.h"
#include "tests/shell/AllScreens.h"
#include "tests/shell/RealWindow.h"
#include "trading/api/TZStockInfoTool.h"
#include "trading/screens/TZSelectStockController.h"
#include "trading/screens/TZStockDetailController.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QQuickItem>
#include <QQuickWindow>

using namespace std::chrono_literals;

namespace {
const QQuickItem *find(const QQuickItem *area, const char *type)
{
    for (const QQuickItem *const child : area->childItems()) {
        if (QByteArray(child->metaObject()->className()).startsWith(type))
            return child;
        if (const QQuickItem *const found = find(child, type))
            return found;
    }
    return nullptr;
}

class Prompted : public QObject, public TZTradePwdAlertDelegate {
public:
    void checkTradePwd(const QString &) override {}
};
} // namespace

/// Stories of the window and of single screens.
using ViewsTest = RealWindowTest;

/// Each screen comes, gets its answers, and goes, and no view complains.
class EveryScreen : public RealWindowTest, public testing::WithParamInterface<AnyScreen> {};

TEST_P(EveryScreen, ComesAndGoes)
{
    KRNavigationController *const stack =
        window.present(std::make_unique<TZPlainPageController>(QStringLiteral("下面"), QString()));
    stack->push(GetParam().make(router));
    EXPECT_FALSE(stack->top()->title().isEmpty()) << "a page is spoken of by its title";
    pass();
    answerAll();
    pass();
    stack->pop();
    pass();
    stack->dismiss();
    pass();
}

INSTANTIATE_TEST_SUITE_P(Client, EveryScreen, testing::ValuesIn(allScreens()),
                         [](const auto &screen) { return std::string(screen.param.name); });

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
    const QQuickItem *const content = find(shown->contentItem(), "NavigationStack");
    ASSERT_TRUE(content);
    EXPECT_NEAR(content->mapRectToScene(content->boundingRect()).width(), 0.82 * shown->width(), 0.5);
    router.showCommissions(*window.topStack()->top());
    pass();
}

TEST_F(ViewsTest, ATapBesideTheFieldEndsEditing)
{
    window.present(std::make_unique<TZModifyNicknameController>());
    pass();
    const QObject *const field = QGuiApplication::focusObject();
    ASSERT_TRUE(field->inherits("QQuickTextInput"));
    tap({shown->width() / 2.0, shown->height() - 100.0});
    EXPECT_NE(QGuiApplication::focusObject(), field);
}

TEST_F(ViewsTest, OnASmallWindowTheKeyboardFindsTheAgreementInSight)
{
    DisplaySettings large;
    large.textSize = DisplaySettings::TextSize::Large;
    large.store();
    shown->resize(360, 480);
    window.present(std::make_unique<TZRegisterController>(router));
    pass();
    const QString agreement = QStringLiteral("软件许可使用协议");
    for (int tab = 0; tab < 10 && shown->activeFocusItem()->property("text") != agreement; ++tab)
        strike(Qt::Key_Tab);
    const QQuickItem *const link = shown->activeFocusItem();
    ASSERT_EQ(link->property("text"), agreement);
    const QRectF place = link->mapRectToScene(link->boundingRect());
    EXPECT_TRUE(QRectF(0, 0, shown->width(), shown->height()).contains(place));
    strike(Qt::Key_Return);
    EXPECT_EQ(window.topStack()->top()->title(), agreement);
    pass();
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

TEST_F(ViewsTest, StockSearchWhoseResultsShrinkWhileItsRowsAreBeingMade)
{
    QList<TZStockInfoModel> stocks;
    for (int number = 0; number < 300; ++number)
        stocks.append({QStringLiteral("600%1").arg(number, 3, 10, QLatin1Char('0')), QStringLiteral("海天"),
                       QStringLiteral("HT")});
    TZStockInfoTool::saveStockInfo(stocks);
    while (TZStockInfoTool::isSaving())
        settle();
    auto screen = std::make_unique<TZSelectStockController>(nullptr, nullptr);
    TZSelectStockController *const search = screen.get();
    window.present(std::move(screen));
    pass();
    for (const char *const text : {"6", "600299", "60", "600001", "6", "x"}) {
        search->setText(text);
        QCoreApplication::processEvents();
    }
    pass();
    TZStockInfoTool::close();
}

TEST_F(ViewsTest, StockDetailWithItsCharts)
{
    QVariantList candles;
    for (int day = 0; day < 80; ++day)
        candles.append(QVariantMap{
            {"day", 20260101 + day}, {"open", 10}, {"high", 12}, {"low", 9}, {"close", 11}, {"volume", 100}});
    const QVariantList minutes{QVariantMap{{"time", "1795224600000"}, {"price", "11"}, {"average", "10"}}};
    auto screen = std::make_unique<TZStockDetailController>(TZZorvanePageStocksModel{});
    TZStockDetailController *const detail = screen.get();
    window.present(std::move(screen));
    http.answer(QStringLiteral("stockDetailPage"),
                succeeded(QVariantMap{{"previousClose", "10"}, {"candles", candles}, {"minutes", minutes}}));
    for (const int chart : {TZStockDetailController::Intraday, TZStockDetailController::Candles}) {
        detail->selectChart(chart);
        pass();
        detail->chart()->step(-1);
        detail->chart()->zoom(2, 100);
        detail->chart()->drag(50);
        pass();
        EXPECT_FALSE(detail->chart()->picture().lines.isEmpty());
    }
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
