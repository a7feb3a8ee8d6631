#include "tests/trading/OrderEntryFixture.h"

TEST_F(OrderEntryTest, BuyingBeginsWithoutAStockAndQuotesItEveryThreeSecondsOnceChosen)
{
    openBuying();
    EXPECT_EQ(screen->title(), "买入");
    EXPECT_TRUE(screen->showBackButton());
    EXPECT_EQ(screen->stockText(), "");
    runLoop.advance(10s);
    EXPECT_EQ(http.countOf(quotePath), 0);

    screen->chooseStock(stock("600001", "海天传媒"));
    EXPECT_EQ(screen->stockText(), "海天传媒(600001)");
    EXPECT_FALSE(screen->canGotoStockSelect());
    EXPECT_EQ(http.countOf(quotePath), 1);
    EXPECT_EQ(http.last().fields(), (QVariantMap{{"stockCode", "600001"}}));
    runLoop.advance(2999ms);
    EXPECT_EQ(http.countOf(quotePath), 1);
    runLoop.advance(1ms);
    EXPECT_EQ(http.countOf(quotePath), 2);
    runLoop.advance(30s);
    EXPECT_EQ(http.countOf(quotePath), 12);
    EXPECT_EQ(http.countOf("buyPage"), 1);
}

TEST_F(OrderEntryTest, SellingQuotesItsHoldingAtOnceAndIsLimitedToWhatIsAvailable)
{
    openSelling();
    EXPECT_EQ(screen->title(), "卖出");
    EXPECT_EQ(http.countOf(quotePath), 1);
    EXPECT_EQ(screen->totalCount(), 1237);
    EXPECT_EQ(screen->countText(), "         当前可卖出1237股");
    EXPECT_FALSE(screen->canGotoStockSelect());
    enter("12.34", "1300");
    EXPECT_EQ(screen->countText(), "         当前可卖出1237股");
}

TEST_F(OrderEntryTest, TheTimerRunsOnlyWhileTheScreenIsShown)
{
    openBuying();
    screen->gotoSelectStock();
    auto *const search = top<TZSelectStockController>();
    ASSERT_NE(search, nullptr);
    screen->chooseStock(stock("600001", "海天传媒"));
    runLoop.advance(10s);
    EXPECT_EQ(http.countOf(quotePath), 0);
    stack().pop();
    EXPECT_EQ(http.countOf(quotePath), 1);
    runLoop.advance(3s);
    EXPECT_EQ(http.countOf(quotePath), 2);

    KRNavigationController *const covering = window.present(std::make_unique<KRBaseController>());
    runLoop.advance(30s);
    EXPECT_EQ(http.countOf(quotePath), 2);
    covering->dismiss();
    EXPECT_EQ(http.countOf(quotePath), 3);

    stack().pop();
    settle();
    runLoop.advance(30s);
    EXPECT_EQ(http.countOf(quotePath), 3);
    http.answer(quotePath, quote("12.30"));
}

TEST_F(OrderEntryTest, AStockOnceChosenIsNotSearchedAgain)
{
    openBuying();
    screen->chooseStock(stock("600001", "海天传媒"));
    screen->gotoSelectStock();
    EXPECT_EQ(stack().top(), screen);
}

TEST_F(OrderEntryTest, AQuoteFillsPriceAndBookAndABrokenOneLeavesThem)
{
    openWithEntry();
    EXPECT_EQ(screen->currentPriceText(), "");
    EXPECT_EQ(screen->sellHandicapView()->rows()->at(0).price, "--");
    http.answer(quotePath, quote("12.30"));
    EXPECT_EQ(screen->currentPriceText(), "现价12.30");
    EXPECT_EQ(titles(screen->sellHandicapView()),
              (QStringList{"卖5", "卖4", "卖3", "卖2", "卖1", "卖10", "卖9", "卖8", "卖7", "卖6"}));
    EXPECT_EQ(titles(screen->buyHandicapView()).constFirst(), "买1");
    EXPECT_EQ(screen->sellHandicapView()->rows()->at(4).price, "12.34");
    EXPECT_DOUBLE_EQ(screen->buyHandicapView()->rows()->at(4).share, 0.5);

    const QList<TZHandicapModel> before = screen->buyArr();
    const auto unchanged = [&] {
        return screen->currentPriceText() == "现价12.30" &&
               screen->buyArr().at(0).price == before.at(0).price && screen->sellArr().at(9).volume == "600";
    };
    const QList<QVariantMap> broken{
        refused("行情不可用"),
        {{"success", false}, {"data", quote("99.99", 99).value("data")}},
        succeeded(QVariantMap{{"match", ""}, {"buyPankou", "x"}, {"sellPankou", QVariantMap()}}),
        succeeded(QVariantMap{{"match", QVariant::fromValue(nullptr)},
                              {"buyPankou", QVariant::fromValue(nullptr)}}),
        succeeded(QVariantList{1, 2}),
        succeeded("text"),
        {},
    };
    for (const QVariantMap &answer : broken) {
        runLoop.advance(3s);
        http.answer(quotePath, answer);
        EXPECT_TRUE(unchanged());
    }
    runLoop.advance(3s);
    http.fail(quotePath, HttpFailure::TimedOut);
    EXPECT_TRUE(unchanged());
}

TEST_F(OrderEntryTest, LostQuotesAgeUntilAGoodOneComes)
{
    openWithEntry();
    http.answer(quotePath, quote("12.30"));
    runLoop.advance(9s);
    http.fail(quotePath, HttpFailure::Offline);
    EXPECT_FALSE(screen->quoteAge()->isStale());
    runLoop.advance(3s);
    EXPECT_EQ(screen->quoteAge()->text(), "行情已 12 秒未更新");
    http.answer(quotePath, refused("行情不可用"));
    EXPECT_TRUE(screen->quoteAge()->isStale());
    http.answer(quotePath, quote("12.31"));
    EXPECT_FALSE(screen->quoteAge()->isStale());

    runLoop.advance(11s);
    screen->chooseStock(stock("000002", "东方钢铁"));
    EXPECT_FALSE(screen->quoteAge()->isStale());
}

TEST_F(OrderEntryTest, AQuoteThatComesLateNeverReplacesANewerOneNorAnotherStocksBook)
{
    openBuying();
    screen->chooseStock(stock("600001", "海天传媒"));
    FakeTransport::Sent &slow = http.last();
    runLoop.advance(3s);
    http.answer(quotePath, quote("12.40"));
    http.answer(slow, quote("12.30"));
    EXPECT_EQ(screen->currentPrice(), "12.40");

    runLoop.advance(3s);
    FakeTransport::Sent &ofTheOld = http.last();
    screen->chooseStock(stock("000002", "东方钢铁"));
    EXPECT_EQ(screen->currentPriceText(), "");
    EXPECT_EQ(screen->buyArr().at(0).price, "");
    http.answer(ofTheOld, quote("12.50"));
    EXPECT_EQ(screen->currentPrice(), "");
    EXPECT_EQ(screen->buyArr().at(0).price, "");
    http.answer(quotePath, quote("33.00", 33));
    EXPECT_EQ(screen->buyArr().at(0).price, "33.00");
}

TEST_F(OrderEntryTest, ATappedLevelFillsThePriceAndCountsWhatItPaysFor)
{
    openBuying();
    screen->chooseStock(stock("600001", "海天传媒"));
    http.answer(quotePath, quote("12.30"));
    screen->sellHandicapView()->selectHandicap(4);
    EXPECT_EQ(screen->price(), "12.34");
    EXPECT_EQ(screen->totalCount(), 810);
    EXPECT_EQ(screen->countText(), "         当前可买入810股");

    notifications.post(TZHandicapView::priceSelectNotification, QVariantMap{{"price", "0.00"}});
    EXPECT_EQ(screen->price(), "0.00");
    EXPECT_EQ(screen->totalCount(), 810);
    EXPECT_EQ(screen->countText(), "         当前可买入810股");
    for (const QVariant &strange :
         {QVariant(), QVariant("text"), QVariant(QVariantMap{{"price", QVariantList{1}}})})
        notifications.post(TZHandicapView::priceSelectNotification, strange);
    EXPECT_EQ(screen->totalCount(), 810);
}

TEST_F(OrderEntryTest, TheKeyboardReachesEveryLevelThatHasAPriceAndNoOther)
{
    openWithEntry();
    TZHandicapView *const sells = screen->sellHandicapView();
    EXPECT_EQ(sells->keyRow(), -1);
    http.answer(quotePath, quote("12.30"));
    EXPECT_EQ(sells->rows()->at(sells->keyRow()).title, "卖1");
    EXPECT_EQ(screen->buyHandicapView()->keyRow(), 0);

    // Seven levels: 卖10 to 卖8, in the middle of the rows, have no price.
    QVariantMap data = quote("12.30").value("data").toMap();
    data["sellPankou"] = data["sellPankou"].toList().mid(0, 7);
    runLoop.advance(3s);
    http.answer(quotePath, succeeded(data));
    EXPECT_EQ(sells->rowBeyond(4, 1), 8);
    EXPECT_EQ(sells->rowBeyond(8, -1), 4);
    EXPECT_EQ(sells->rowBeyond(0, -1), -1);
    EXPECT_EQ(sells->rowBeyond(9, 1), -1);
    sells->setKeyRow(9);
    data["sellPankou"] = QVariantList{data["sellPankou"].toList().at(0)};
    runLoop.advance(3s);
    http.answer(quotePath, succeeded(data));
    EXPECT_EQ(sells->keyRow(), 4) << "the level that the keyboard left is gone, the side is not";
}

TEST_F(OrderEntryTest, ALevelWithoutAPriceIsNotPicked)
{
    openWithEntry();
    screen->sellHandicapView()->selectHandicap(0);
    screen->sellHandicapView()->selectHandicap(10);
    screen->sellHandicapView()->selectHandicap(-1);
    EXPECT_EQ(screen->price(), "12.34");
}

TEST_F(OrderEntryTest, ALevelIsDrawnWithItsPriceAndAVolumeThatHasRoomBesideIt)
{
    openWithEntry();
    struct Case {
        const char *price;
        const char *volume;
        const char *drawn;
    };
    for (const Case &each :
         {Case{"12.34", "99999", "12.34 99999"}, Case{"12.34", "100000", "12.34 10.0万"},
          Case{"12.34", "1296400", "12.34 129.6万"}, Case{"12.34", "123456700", "12.34 1.2亿"},
          Case{"0.00", "0", "-- --"}, Case{"0", "500", "-- --"}, Case{"x", "500", "-- --"}}) {
        const QVariantList levels{QVariantMap{{"price", each.price}, {"volume", each.volume}}};
        runLoop.advance(3s);
        http.answer(quotePath, succeeded(QVariantMap{{"match", "12.30"}, {"buyPankou", levels}}));
        const HandicapRow &row = screen->buyHandicapView()->rows()->at(0);
        EXPECT_EQ(row.price + u' ' + row.volume, each.drawn);
        EXPECT_EQ(row.selectable, row.price != "--");
    }
    screen->buyHandicapView()->selectHandicap(0);
    EXPECT_EQ(screen->price(), "12.34") << "what is no price is not picked";
}

TEST_F(OrderEntryTest, OfQuotesThatFailOneIsToldUntilOneSucceeds)
{
    openWithEntry();
    http.answer(quotePath, quote("12.30"));
    const auto fail = [this] {
        overlays.hideBanners();
        runLoop.advance(3s);
        http.fail(quotePath, HttpFailure::TimedOut);
        return banners().join(u' ');
    };
    EXPECT_EQ(fail(), "加载失败");
    EXPECT_EQ(fail(), "");
    overlays.hideBanners();
    runLoop.advance(3s);
    http.answer(quotePath, refused("行情不可用"));
    EXPECT_EQ(banners(), QStringList());
    runLoop.advance(3s);
    http.answer(quotePath, quote("12.31"));
    EXPECT_EQ(fail(), "加载失败");
}

TEST_F(OrderEntryTest, ATypedPriceIsCountedATenthOfASecondLater)
{
    openBuying();
    screen->editPrice("12.34");
    runLoop.advance(99ms);
    EXPECT_EQ(screen->countText(), "");
    runLoop.advance(1ms);
    EXPECT_EQ(screen->countText(), "         当前可买入810股");
    screen->editPrice("12.345");
    EXPECT_EQ(screen->price(), "12.34");

    for (const QString nothing : {"", "0", "0.00", "."}) {
        screen->editPrice("12.34");
        runLoop.advance(100ms);
        screen->editPrice(nothing);
        runLoop.advance(100ms);
        EXPECT_EQ(screen->countText(), "") << qPrintable(nothing);
        EXPECT_EQ(screen->totalCount(), 810);
    }
}

TEST_F(OrderEntryTest, TheCountFollowsWhileTypingGoesOn)
{
    openBuying();
    for (const QString typed : {"1", "12", "12.", "12.3"}) {
        screen->editPrice(typed);
        runLoop.advance(50ms);
    }
    EXPECT_EQ(screen->totalCount(), 813);
    screen->editPrice("12.34");
    runLoop.advance(100ms);
    EXPECT_EQ(screen->totalCount(), 810);
}

TEST_F(OrderEntryTest, OpeningTheSearchEndsEditingBeforeTheSearchIsThere)
{
    openBuying();
    QList<const KRBaseController *> ended;
    QObject::connect(&window, &KRWindow::editingEnded, &window,
                     [this, &ended] { ended.append(stack().top()); });
    const int depth = stack().depth();
    screen->gotoSelectStock();
    EXPECT_EQ(ended, QList<const KRBaseController *>{screen});
    screen->gotoSelectStock();
    EXPECT_EQ(stack().depth(), depth + 1) << "a double click opens one search";
}

TEST_F(OrderEntryTest, LeavingEndsItsOwnEditingAndThatOfNobodyElse)
{
    openBuying();
    int own = 0;
    int others = 0;
    QObject::connect(screen, &KRBaseController::editingEnded, screen, [&own] { ++own; });
    QObject::connect(&window, &KRWindow::editingEnded, &window, [&others] { ++others; });
    push<KRBaseController>();
    stack().pop();
    window.present(std::make_unique<KRBaseController>());
    EXPECT_EQ(own, 2);
    EXPECT_EQ(others, 0) << "by then the keyboard belongs to what came over it";
}

TEST_F(OrderEntryTest, MoneyThatComesAfterThePriceIsCounted)
{
    screen = push<TZBuyAndSellController>(OrderSide::Buy);
    enter("12.34", "");
    EXPECT_EQ(screen->totalCount(), 0);
    http.answer(QStringLiteral("buyPage"), succeeded(10000.0));
    EXPECT_EQ(screen->useableAmount(), 10000.0);
    EXPECT_EQ(screen->totalCount(), 810);
}

TEST_F(OrderEntryTest, MoneyThatIsNotKnownIsNotZeroAndIsAskedForAgain)
{
    const QString buyPage = QStringLiteral("buyPage");
    screen = push<TZBuyAndSellController>(OrderSide::Buy);
    screen->chooseStock(stock("600001", "海天传媒"));
    enter("12.34", "800");
    const auto refusesToSend = [this] {
        submitEntry();
        return lastBanner() == "正在获取可用资金，请稍后再试" && screen->countText().isEmpty();
    };
    EXPECT_TRUE(refusesToSend());
    EXPECT_EQ(http.countOf(buyPage), 1) << "one is on its way";
    http.fail(buyPage, HttpFailure::TimedOut);
    push<KRBaseController>();
    stack().pop();
    http.answer(buyPage, refused("系统繁忙"));
    EXPECT_TRUE(refusesToSend());
    http.answer(buyPage, succeeded(QVariant::fromValue(nullptr)));
    EXPECT_TRUE(refusesToSend());
    http.answer(buyPage, succeeded("10000.00"));
    EXPECT_EQ(screen->countText(), "         当前可买入810股");
    submitEntry();
    EXPECT_EQ(http.countOf(buyPath), 1);
    EXPECT_EQ(http.countOf(buyPage), 4);
}

TEST_F(OrderEntryTest, AHoldingThatDoesNotTellWhatMayBeSoldIsNotTakenForNone)
{
    openSelling("");
    enter("12.34", "100");
    screen->submit();
    EXPECT_EQ(screen->countText(), "");
    EXPECT_EQ(lastBanner(), "没有可卖数量，请重新选择持仓");
}

TEST_F(OrderEntryTest, ADebtBuysNothing)
{
    openBuying("-100000");
    screen->editPrice("12.34");
    runLoop.advance(100ms);
    screen->selectFraction(OrderEntryRules::All);
    EXPECT_EQ(screen->quantity(), "0");
}

TEST_F(OrderEntryTest, BlanksAroundWhatIsPastedAreDropped)
{
    openBuying();
    screen->editPrice(" 12.34\t");
    screen->editQuantity(QString::fromUtf8("　800 "));
    EXPECT_EQ(screen->price() + screen->quantity(), "12.34800");
}

TEST_F(OrderEntryTest, QuickButtonsWriteWholeLots)
{
    openBuying();
    screen->selectFraction(OrderEntryRules::All);
    EXPECT_EQ(screen->quantity(), "0");
    screen->editPrice("12.34");
    runLoop.advance(100ms);
    const QStringList expected{"200", "400", "800"};
    for (int tag = 0; tag < 3; ++tag) {
        screen->selectFraction(tag);
        EXPECT_EQ(screen->quantity(), expected.at(tag));
        EXPECT_EQ(screen->selectedFraction(), tag);
    }
    screen->selectFraction(3);
    screen->selectFraction(-1);
    EXPECT_EQ(screen->quantity(), "800");
    screen->editQuantity("123456789");
    EXPECT_EQ(screen->quantity(), "12345678");
    EXPECT_EQ(screen->selectedFraction(), -1);
    screen->editQuantity("1 00");
    EXPECT_EQ(screen->quantity(), "12345678");
}

TEST_F(OrderEntryTest, ChoosingAStockEmptiesTheEntry)
{
    openWithEntry();
    screen->selectFraction(0);
    screen->chooseStock(stock("000002", "东方钢铁"));
    EXPECT_EQ(screen->price(), "");
    EXPECT_EQ(screen->quantity(), "");
    EXPECT_EQ(screen->countText(), "");
    EXPECT_EQ(screen->zorvanePageStocksModel().stockCode, "000002");
    EXPECT_EQ(screen->zorvanePageStocksModel().availableShares, "");
}

TEST_F(OrderEntryTest, TheFirstFaultIsSaidAndNothingIsSent)
{
    struct Case {
        QString code;
        QString price;
        QString quantity;
        QString buying;
        QString selling;
    };
    const QList<Case> table{
        {"", "", "", "请输入股票代码", "请输入正确的股票代码"},
        {"", "12.34", "100", "请输入股票代码", "请输入正确的股票代码"},
        {"600001", "", "", "请输入买入价格", "请输入卖出价格"},
        {"600001", "", "150", "请输入买入价格", "请输入卖出价格"},
        {"600001", "12.34", "", "请输入买入数量", "请输入卖出数量"},
        {"600001", "12.34", "0", "买入数量须为100的整数倍", "卖出数量须为100的整数倍"},
        {"600001", "12.34", "50", "买入数量须为100的整数倍", "卖出数量须为100的整数倍"},
        {"600001", "12.34", "150", "买入数量须为100的整数倍", "卖出数量须为100的整数倍"},
        {"600001", "12.34", "99999950", "买入数量须为100的整数倍", "卖出数量须为100的整数倍"},
        {"600001", "12.34", "900", "超过交易数量上限", "超过交易数量上限"},
        {"600001", "12.34", "99999900", "超过交易数量上限", "超过交易数量上限"},
    };
    for (const OrderSide side : {OrderSide::Buy, OrderSide::Sell}) {
        for (const Case &each : table) {
            TZZorvanePageStocksModel model;
            model.stockCode = each.code;
            model.availableShares = QStringLiteral("810");
            screen = push<TZBuyAndSellController>(side, model);
            http.answer(QStringLiteral("buyPage"), succeeded("10000.00"));
            enter(each.price, each.quantity);
            screen->submit();
            runLoop.advance(1s);
            EXPECT_EQ(lastBanner(), side == OrderSide::Buy ? each.buying : each.selling)
                << qPrintable(each.price) << ' ' << qPrintable(each.quantity);
            EXPECT_EQ(http.countOf(buyPath) + http.countOf(sellPath), 0);
            stack().pop();
            settle();
        }
    }
}

TEST_F(OrderEntryTest, AnOddRemainderIsNotSold)
{
    openSelling("150");
    enter("12.34", "150");
    screen->submit();
    EXPECT_EQ(lastBanner(), "卖出数量须为100的整数倍");
}
