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
    TZSelectStockControllerTest()
    {
        auto first = std::make_unique<Opener>();
        opener = first.get();
        stack = std::make_unique<KRNavigationController>(std::move(first));
        stack->setVisible(true);
    }

    void open()
    {
        auto pushed = std::make_unique<TZSelectStockController>(opener, opener);
        search = pushed.get();
        stack->push(std::move(pushed));
    }
    void openWithSomeStocks()
    {
        save({{"300600", "东方钢铁", "DFGT"},
              {"600123", "南海医药", "NHYY"},
              {"000600", "海天传媒", "HTCM"},
              {"000001", "600米股份", "LBMGF"},
              {"600", "华夏六百", "HXLB"}});
        open();
    }

    QStringList pieces(int row, const char *role) const
    {
        GadgetListModel *const rows = search->rows();
        return rows->data(rows->index(row), rows->roleNames().key(role, -1)).toStringList();
    }
    QString shownCodes() const
    {
        QStringList codes;
        for (int row = 0; row < search->rows()->count(); ++row)
            codes.append(pieces(row, "code").join(QString()));
        return codes.join(u' ');
    }

    std::unique_ptr<KRNavigationController> stack;
    Opener *opener = nullptr;
    TZSelectStockController *search = nullptr;
};
} // namespace

TEST_F(TZSelectStockControllerTest, AStocksDetailOpensOverTheSearchAndNothingIsChosen)
{
    openWithSomeStocks();
    search->setText("600123");
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
    openWithSomeStocks();
    search->setText("600");
    EXPECT_EQ(shownCodes(), "600 600123 000001 300600 000600");
    search->setText(" 海 ");
    EXPECT_EQ(shownCodes(), "000600 600123");
    search->setText("ht");
    EXPECT_EQ(pieces(0, "initials"), (QStringList{"", "HT", "CM"})) << "what was searched for is marked";
    EXPECT_EQ(pieces(0, "name"), (QStringList{"海天传媒", "", ""}));
    for (const QString &rubbish : {QString("'"), QString("6'"), QString(10000, u'龙'), QString("６００")}) {
        search->setText(rubbish);
        EXPECT_EQ(shownCodes(), "");
        EXPECT_EQ(search->notice(), "没有找到相关股票");
        EXPECT_FALSE(search->canRetry());
    }
}

TEST_F(TZSelectStockControllerTest, PickingHandsTheStockOverAndLeavesOnce)
{
    openWithSomeStocks();
    search->setText("nh");
    search->pick(0);
    search->pick(0);
    EXPECT_EQ(opener->chosen, QStringList{"600123"});
    EXPECT_EQ(stack->top(), opener);
    EXPECT_EQ(stack->depth(), 1);
}

TEST_F(TZSelectStockControllerTest, TheKeyboardMovesInsideTheListAndPicks)
{
    openWithSomeStocks();
    search->pickCurrentRow();
    EXPECT_EQ(stack->depth(), 2) << "nothing is selected while nothing is typed";
    search->setText("600");
    search->moveCurrentRow(-1);
    EXPECT_EQ(search->currentRow(), 0);
    search->moveCurrentRow(50);
    EXPECT_EQ(search->currentRow(), 4);
    search->moveCurrentRow(-1);
    EXPECT_TRUE(search->sentence().contains("300600 ")) << search->sentence().toStdString();
    EXPECT_TRUE(search->sentence().endsWith("，第4条，共5条"));
    search->setText("nothing");
    EXPECT_EQ(search->sentence(), search->notice());
    search->setText("600");
    search->moveCurrentRow(3);
    search->pickCurrentRow();
    EXPECT_EQ(opener->chosen, QStringList{"300600"});
}

TEST_F(TZSelectStockControllerTest, RemembersTheStocksPickedBeforeTheLatestFirst)
{
    save(many(12, "600"));
    open();
    QStringList picked = codes();
    picked.append("600005");
    for (const QString &code : std::as_const(picked)) {
        search->setText(code);
        search->pick(0);
        settle();
        open();
    }
    EXPECT_EQ(shownCodes(), "600005 600011 600010 600009 600008 600007 600006 600004 600003 600002");
    EXPECT_TRUE(search->isRecent());
    EXPECT_EQ(search->currentRow(), -1);
    EXPECT_EQ(search->notice(), QString());

    search->clearRecent();
    EXPECT_EQ(shownCodes(), "");
    EXPECT_FALSE(search->isRecent());
    EXPECT_FALSE(settings.values.contains(TZSelectStockController::recentStocksKey));
}

TEST_F(TZSelectStockControllerTest, AnythingElseStoredAsRecentStocksIsLeftOut)
{
    settings.setValue(TZSelectStockController::recentStocksKey,
                      QVariantList{1, "x", QVariantMap{{"n", "无代码"}}, QVariantMap{{"c", "600123"}}});
    openWithSomeStocks();
    EXPECT_EQ(shownCodes(), "600123");
}

TEST_F(TZSelectStockControllerTest, ALongListIsCutAndSaysSo)
{
    save(many(300, "600"));
    open();
    search->setText("6");
    EXPECT_EQ(search->rows()->count(), TZSelectStockController::maximumShown);
    EXPECT_EQ(search->footnote(), "只显示前200条，请输入更多内容");
    search->setText("60029");
    EXPECT_EQ(search->rows()->count(), 10);
    EXPECT_EQ(search->footnote(), QString());
}

TEST_F(TZSelectStockControllerTest, AnEmptyTableIsFetchedAgainOnDemandAndWhatWasTypedMeanwhileIsFound)
{
    const auto state = [this] { return (overlays.isWaiting() ? "waiting " : "") + search->notice(); };
    open();
    EXPECT_EQ(state(), "waiting 正在获取股票列表");
    http.fail("info", HttpFailure::TimedOut);
    EXPECT_EQ(state(), "加载失败");
    EXPECT_TRUE(search->canRetry());
    search->noNet()->clickReloadBtn();
    EXPECT_EQ(state(), "waiting 正在获取股票列表");
    http.answer("info", succeeded());
    EXPECT_EQ(state(), "暂无股票列表");
    search->noNet()->clickReloadBtn();
    search->setText("nhyy");
    http.answer("info", newList(medicine));
    EXPECT_EQ(search->notice(), "正在获取股票列表");
    waitUntilSaved();
    EXPECT_EQ(state(), "");
    EXPECT_EQ(shownCodes(), "000600");
    EXPECT_FALSE(search->canRetry());
}

TEST_F(TZSelectStockControllerTest, WithoutANetworkTheListIsFetchedWhenItReturns)
{
    settings.setValue(SettingsKeys::networkStatus, false);
    open();
    EXPECT_EQ(search->notice(), "网络异常");
    notifications.post(NotificationNames::reachabilityChanged);
    EXPECT_EQ(http.count(), 0);

    settings.setValue(SettingsKeys::networkStatus, true);
    notifications.post(NotificationNames::reachabilityChanged);
    http.answer("info", newList(medicine));
    waitUntilSaved();
    EXPECT_EQ(search->notice(), "输入股票代码、名称或拼音首字母");
}

TEST_F(TZSelectStockControllerTest, AListAlreadyBeingSavedIsNotAskedForTwice)
{
    TZStockInfoTool::saveStockInfo({steel});
    open();
    EXPECT_EQ(http.count(), 0);
    waitUntilSaved();
    search->setText("6001");
    EXPECT_EQ(shownCodes(), "600123");
}

TEST_F(TZSelectStockControllerTest, AnAnswerAfterTheScreenWentSavesTheListQuietly)
{
    open();
    search->backButtonClicked();
    settle();
    http.answer("info", newList(medicine));
    waitUntilSaved();
    EXPECT_FALSE(TZStockInfoTool::isTableEmpty());
}
