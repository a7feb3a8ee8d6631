#include "trading/screens/TZSelectStockController.h"

#include "core/session/NotificationNames.h"
#include "core/session/SettingsKeys.h"
#include "core/shell/KRNavigationController.h"
#include "core/util/Text.h"
#include "tests/trading/StockTableFixture.h"
#include "trading/screens/TZStockDetailController.h"

namespace {
class Opener : public KRBaseController, public StockChooser {
public:
    void chooseStock(const TZStockInfoModel &stock) override { chosen.append(stock.c); }
    QStringList chosen;
};

class TZSelectStockControllerTest : public StockTableTest {
protected:
    void saveSomeStocks()
    {
        save({{QStringLiteral("300600"), QStringLiteral("东方钢铁"), QStringLiteral("DFGT")},
              {QStringLiteral("600123"), QStringLiteral("南海医药"), QStringLiteral("NHYY")},
              {QStringLiteral("000600"), QStringLiteral("海天传媒"), QStringLiteral("HTCM")},
              {QStringLiteral("000001"), QStringLiteral("600米股份"), QStringLiteral("LBMGF")},
              {QStringLiteral("600"), QStringLiteral("华夏六百"), QStringLiteral("HXLB")}});
    }

    void open()
    {
        auto first = std::make_unique<Opener>();
        opener = first.get();
        stack = std::make_unique<KRNavigationController>(std::move(first));
        stack->setVisible(true);
        search = pushSearch();
    }

    TZSelectStockController *pushSearch()
    {
        auto pushed = std::make_unique<TZSelectStockController>(opener, opener);
        TZSelectStockController *const screen = pushed.get();
        stack->push(std::move(pushed));
        return screen;
    }

    QString at(int row, const char *role) const
    {
        GadgetListModel *const rows = search->rows();
        const int number = rows->roleNames().key(role, -1);
        return rows->data(rows->index(row), number).toStringList().join(QString());
    }

    QStringList shownCodes() const
    {
        QStringList codes;
        for (int row = 0; row < search->rows()->count(); ++row)
            codes.append(at(row, "code"));
        return codes;
    }

    void pickByCode(const QString &code)
    {
        search->setText(code);
        search->pick(0);
        settle();
    }

    std::unique_ptr<KRNavigationController> stack;
    Opener *opener = nullptr;
    TZSelectStockController *search = nullptr;
};

QVariantMap newList()
{
    const QVariantMap stock{{QStringLiteral("c"), QStringLiteral("600123")},
                            {QStringLiteral("n"), QStringLiteral("南海医药")},
                            {QStringLiteral("s"), QStringLiteral("NHYY")}};
    return {{QStringLiteral("success"), false},
            {QStringLiteral("code"), QStringLiteral("3")},
            {QStringLiteral("data"), QVariantList{stock}}};
}
} // namespace

TEST_F(TZSelectStockControllerTest, AStocksDetailOpensOverTheSearchAndNothingIsChosen)
{
    saveSomeStocks();
    open();
    search->setText(QStringLiteral("600123"));
    search->openDetail(1);
    EXPECT_EQ(stack->top(), search);
    search->openDetail(0);
    auto *const detail = dynamic_cast<TZStockDetailController *>(stack->top());
    ASSERT_NE(detail, nullptr);
    EXPECT_EQ(detail->stockText(), "南海医药(600123)");
    search->pick(0);
    EXPECT_EQ(stack->top(), detail);
    EXPECT_TRUE(opener->chosen.isEmpty());
}

TEST_F(TZSelectStockControllerTest, TheCodeItselfComesFirstThenBeginningsThenTheRestInTheTablesOrder)
{
    saveSomeStocks();
    open();
    search->setText(QStringLiteral("600"));
    EXPECT_EQ(shownCodes(),
              (QStringList{QStringLiteral("600"), QStringLiteral("600123"), QStringLiteral("000001"),
                           QStringLiteral("300600"), QStringLiteral("000600")}));
    search->setText(QStringLiteral(" 海 "));
    EXPECT_EQ(shownCodes(), (QStringList{QStringLiteral("000600"), QStringLiteral("600123")}));
    search->setText(QStringLiteral("hx"));
    EXPECT_EQ(shownCodes(), QStringList{QStringLiteral("600")});
}

TEST_F(TZSelectStockControllerTest, MarksWhatWasSearchedFor)
{
    saveSomeStocks();
    open();
    search->setText(QStringLiteral("ht"));
    GadgetListModel *const rows = search->rows();
    const auto pieces = [rows](const char *role) {
        return rows->data(rows->index(0), rows->roleNames().key(role, -1)).toStringList();
    };
    EXPECT_EQ(pieces("initials"), (QStringList{QString(), QStringLiteral("HT"), QStringLiteral("CM")}));
    EXPECT_EQ(pieces("name"), (QStringList{QStringLiteral("海天传媒"), QString(), QString()}));
}

TEST_F(TZSelectStockControllerTest, PickingHandsTheStockOverAndLeavesOnce)
{
    saveSomeStocks();
    open();
    search->setText(QStringLiteral("nh"));
    search->pick(0);
    search->pick(0);
    EXPECT_EQ(opener->chosen, QStringList{QStringLiteral("600123")});
    EXPECT_EQ(stack->top(), opener);
    EXPECT_EQ(stack->depth(), 1);
}

TEST_F(TZSelectStockControllerTest, ATapWhileTheScreenLeavesPicksNothing)
{
    saveSomeStocks();
    open();
    pushSearch();
    search->setText(QStringLiteral("nh"));
    search->pick(0);
    EXPECT_TRUE(opener->chosen.isEmpty());
    EXPECT_EQ(stack->depth(), 3);
}

TEST_F(TZSelectStockControllerTest, TheKeyboardMovesInsideTheListAndPicks)
{
    saveSomeStocks();
    open();
    search->pickCurrentRow();
    EXPECT_EQ(stack->depth(), 2) << "nothing is selected while nothing is typed";
    search->setText(QStringLiteral("600"));
    EXPECT_EQ(search->currentRow(), 0);
    search->moveCurrentRow(-1);
    EXPECT_EQ(search->currentRow(), 0);
    search->moveCurrentRow(50);
    EXPECT_EQ(search->currentRow(), 4);
    search->moveCurrentRow(-1);
    EXPECT_TRUE(search->sentence().contains("300600 ")) << search->sentence().toStdString();
    EXPECT_TRUE(search->sentence().endsWith("，第4条，共5条"));
    search->setText(QStringLiteral("nothing"));
    EXPECT_EQ(search->sentence(), search->notice());
    search->setText(QStringLiteral("600"));
    search->moveCurrentRow(3);
    search->pickCurrentRow();
    EXPECT_EQ(opener->chosen, QStringList{QStringLiteral("300600")});
}

TEST_F(TZSelectStockControllerTest, RemembersTheStocksPickedBeforeTheLatestFirst)
{
    QList<TZStockInfoModel> stocks;
    for (int i = 0; i < 12; ++i)
        stocks.append({QStringLiteral("6001%1").arg(i, 2, 10, QLatin1Char('0')), QStringLiteral("某某股份"),
                       QStringLiteral("MMGF")});
    save(stocks);
    open();
    for (const TZStockInfoModel &stock : stocks) {
        pickByCode(stock.c);
        search = pushSearch();
    }
    pickByCode(QStringLiteral("600105"));
    search = pushSearch();
    EXPECT_EQ(search->rows()->count(), TZSelectStockController::maximumRecent);
    EXPECT_EQ(at(0, "code"), QStringLiteral("600105"));
    EXPECT_EQ(at(1, "code"), QStringLiteral("600111"));
    EXPECT_EQ(shownCodes().count(QStringLiteral("600105")), 1);
    EXPECT_TRUE(search->isRecent());
    EXPECT_EQ(search->currentRow(), -1);
    EXPECT_EQ(search->notice(), QString());

    search->clearRecent();
    EXPECT_EQ(search->rows()->count(), 0);
    EXPECT_FALSE(search->isRecent());
    EXPECT_FALSE(settings.values.contains(TZSelectStockController::recentStocksKey));
}

TEST_F(TZSelectStockControllerTest, AnythingElseStoredAsRecentStocksIsLeftOut)
{
    settings.setValue(TZSelectStockController::recentStocksKey,
                      QVariantList{1, QStringLiteral("x"),
                                   QVariantMap{{QStringLiteral("n"), QStringLiteral("无代码")}},
                                   QVariantMap{{QStringLiteral("c"), QStringLiteral("600123")}}});
    saveSomeStocks();
    open();
    EXPECT_EQ(shownCodes(), QStringList{QStringLiteral("600123")});
}

TEST_F(TZSelectStockControllerTest, ALongListIsCutAndSaysSo)
{
    QList<TZStockInfoModel> stocks;
    for (int i = 0; i < 300; ++i)
        stocks.append({QStringLiteral("600%1").arg(i, 3, 10, QLatin1Char('0')), QStringLiteral("某某股份"),
                       QStringLiteral("MMGF")});
    save(stocks);
    open();
    search->setText(QStringLiteral("6"));
    EXPECT_EQ(search->rows()->count(), TZSelectStockController::maximumShown);
    EXPECT_EQ(search->footnote(), QStringLiteral("只显示前200条，请输入更多内容"));
    search->setText(QStringLiteral("60029"));
    EXPECT_EQ(search->rows()->count(), 10);
    EXPECT_EQ(search->footnote(), QString());
}

TEST_F(TZSelectStockControllerTest, AQuoteOrPastedRubbishFindsNothing)
{
    saveSomeStocks();
    open();
    for (const QString &text : {QStringLiteral("'"), QStringLiteral("6'"), QString(10000, u'龙'),
                                QStringLiteral("😀"), QStringLiteral("６００")}) {
        search->setText(text);
        EXPECT_EQ(search->rows()->count(), 0);
        EXPECT_EQ(search->notice(), QStringLiteral("没有找到相关股票"));
        EXPECT_FALSE(search->canRetry());
    }
}

TEST_F(TZSelectStockControllerTest, AnEmptyTableIsFetchedAndWhatWasTypedMeanwhileIsFound)
{
    open();
    EXPECT_TRUE(overlays.isWaiting());
    EXPECT_EQ(http.countOf(QStringLiteral("info")), 1);
    search->setText(QStringLiteral("nhyy"));
    EXPECT_EQ(search->notice(), QStringLiteral("正在获取股票列表"));
    http.answer(QStringLiteral("info"), newList());
    EXPECT_EQ(search->notice(), QStringLiteral("正在获取股票列表"));
    waitUntilSaved();
    EXPECT_FALSE(overlays.isWaiting());
    EXPECT_EQ(shownCodes(), QStringList{QStringLiteral("600123")});
    EXPECT_EQ(search->notice(), QString());
}

TEST_F(TZSelectStockControllerTest, AListThatCannotBeHadIsAskedForAgainOnDemand)
{
    open();
    http.fail(QStringLiteral("info"), HttpFailure::TimedOut);
    EXPECT_EQ(search->notice(), QStringLiteral("加载失败"));
    EXPECT_TRUE(search->canRetry());
    EXPECT_FALSE(overlays.isWaiting());

    search->noNet()->clickReloadBtn();
    EXPECT_TRUE(overlays.isWaiting());
    http.answer(QStringLiteral("info"), succeeded());
    EXPECT_EQ(search->notice(), QStringLiteral("暂无股票列表"));
    EXPECT_FALSE(overlays.isWaiting());

    search->noNet()->clickReloadBtn();
    http.answer(QStringLiteral("info"), newList());
    waitUntilSaved();
    EXPECT_FALSE(search->canRetry());
}

TEST_F(TZSelectStockControllerTest, WithoutANetworkTheListIsFetchedWhenItReturns)
{
    settings.setValue(SettingsKeys::networkStatus, false);
    open();
    EXPECT_EQ(search->notice(), QStringLiteral("网络异常"));
    EXPECT_EQ(http.count(), 0);
    notifications.post(NotificationNames::reachabilityChanged);
    EXPECT_EQ(http.count(), 0);

    settings.setValue(SettingsKeys::networkStatus, true);
    notifications.post(NotificationNames::reachabilityChanged);
    EXPECT_EQ(http.countOf(QStringLiteral("info")), 1);
    http.answer(QStringLiteral("info"), newList());
    waitUntilSaved();
    EXPECT_EQ(search->notice(), QStringLiteral("输入股票代码、名称或拼音首字母"));
}

TEST_F(TZSelectStockControllerTest, AListAlreadyBeingSavedIsNotAskedForTwice)
{
    TZStockInfoTool::saveStockInfo(
        {{QStringLiteral("600123"), QStringLiteral("南海医药"), QStringLiteral("NHYY")}});
    open();
    EXPECT_EQ(http.count(), 0);
    waitUntilSaved();
    search->setText(QStringLiteral("6001"));
    EXPECT_EQ(shownCodes(), QStringList{QStringLiteral("600123")});
}

TEST_F(TZSelectStockControllerTest, AnAnswerAfterTheScreenWentSavesTheListQuietly)
{
    open();
    search->backButtonClicked();
    settle();
    http.answer(QStringLiteral("info"), newList());
    waitUntilSaved();
    EXPECT_FALSE(TZStockInfoTool::isTableEmpty());
}
