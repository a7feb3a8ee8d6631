#include "tests/trading/OrderEntryFixture.h"

TEST_F(OrderEntryTest, BuyingBeginsWithoutAStockAndQuotesItEveryThreeSecondsOnceChosen)
{
    openBuying();
    EXPECT_EQ(screen->title() + screen->pricePlaceholder(), "买入请输入买入价");
    EXPECT_EQ(screen->stockText(), "");
    runLoop.advance(10s);
    EXPECT_EQ(http.countOf(quotePath), 0);

    screen->chooseStock(stock("600001", "海天传媒"));
    EXPECT_EQ(screen->stockText(), "海天传媒(600001)");
    EXPECT_EQ(http.last().fields(), (QVariantMap{{"stockCode", "600001"}}));
    runLoop.advance(2999ms);
    EXPECT_EQ(http.countOf(quotePath), 1);
    runLoop.advance(1ms);
    EXPECT_EQ(http.countOf(quotePath), 2);
    runLoop.advance(30s);
    EXPECT_EQ(http.countOf(quotePath), 12);
    EXPECT_EQ(http.countOf("buyPage"), 1);
    EXPECT_FALSE(screen->canGotoStockSelect());
    screen->gotoSelectStock();
    EXPECT_EQ(stack().top(), screen) << "a stock once chosen is not searched again";
}

TEST_F(OrderEntryTest, SellingQuotesItsHoldingAtOnceAndIsLimitedToWhatIsAvailable)
{
    openSelling();
    EXPECT_EQ(screen->title() + screen->pricePlaceholder(), "卖出请输入卖出价");
    EXPECT_EQ(http.countOf(quotePath), 1);
    EXPECT_FALSE(screen->canGotoStockSelect());
    enter("12.34", "1300");
    EXPECT_EQ(screen->totalCount(), 1237);
    EXPECT_EQ(screen->countText(), "         当前可卖出1237股");
    stack().pop();

    openSelling("");
    enter("12.34", "100");
    screen->submit();
    EXPECT_EQ(screen->countText(), "");
    EXPECT_EQ(lastBanner(), "没有可卖数量，请重新选择持仓") << "what is not told is not taken for none";
}

TEST_F(OrderEntryTest, TheTimerRunsOnlyWhileTheScreenIsShown)
{
    openBuying();
    screen->gotoSelectStock();
    ASSERT_NE(top<TZSelectStockController>(), nullptr);
    screen->chooseStock(stock("600001", "海天传媒"));
    runLoop.advance(10s);
    EXPECT_EQ(http.countOf(quotePath), 0);
    stack().pop();
    runLoop.advance(3s);
    EXPECT_EQ(http.countOf(quotePath), 2);
    KRNavigationController *const covering = cover();
    runLoop.advance(30s);
    EXPECT_EQ(http.countOf(quotePath), 2);
    covering->dismiss();
    EXPECT_EQ(http.countOf(quotePath), 3);

    stack().pop();
    settle();
    EXPECT_EQ(runLoop.activeTimers(), 0);
    http.answer(quotePath, quote("12.30"));
    notifications.post(TZHandicapView::priceSelectNotification, QVariantMap{{"price", "1.00"}});
    EXPECT_EQ(runLoop.activeTimers(), 0) << "what comes later does nothing";
}

TEST_F(OrderEntryTest, AQuoteFillsPriceAndBookAndABrokenOneLeavesThem)
{
    openWithEntry();
    EXPECT_EQ(screen->currentPriceText(), "");
    http.answer(quotePath, quote("12.30"));
    const auto shown = [this] {
        const HandicapRow &best = screen->sellHandicapView()->rows()->at(4);
        const HandicapRow &fifth = screen->buyHandicapView()->rows()->at(4);
        return QStringList{screen->currentPriceText(),  best.title, best.price, fifth.title, fifth.volume,
                           QString::number(fifth.share)};
    };
    const QStringList good{"现价12.30", "卖1", "12.34", "买5", "500", "0.5"};
    EXPECT_EQ(shown(), good);
    const QVariant null = QVariant::fromValue(nullptr);
    const QList<QVariantMap> broken{
        refused("行情不可用"),
        {{"success", false}, {"data", quote("99.99", 99).value("data")}},
        succeeded(QVariantMap{{"match", ""}, {"buyPankou", "x"}, {"sellPankou", QVariantMap()}}),
        succeeded(QVariantMap{{"match", QVariantMap{{"price", "9.99"}}}}),
        succeeded(QVariantMap{{"match", null}, {"buyPankou", null}}),
        succeeded(QVariantList{1, 2}),
        succeeded("text"),
        {},
    };
    for (const QVariantMap &answer : broken) {
        quoteNext(answer);
        EXPECT_EQ(shown(), good);
    }
}

TEST_F(OrderEntryTest, LostQuotesAgeAndOneIsToldUntilAGoodOneComes)
{
    openWithEntry();
    http.answer(quotePath, quote("12.30"));
    // What those on their way have told when they have failed, and how old the book is said to be.
    const auto state = [this] {
        QString told;
        do {
            told += banners().join(u' ');
            overlays.hideBanners();
            if (http.hasPending(quotePath))
                http.fail(quotePath, HttpFailure::TimedOut);
        } while (http.hasPending(quotePath) || !banners().isEmpty());
        return told + u'|' + screen->quoteAge()->text();
    };
    runLoop.advance(9s);
    EXPECT_EQ(state(), "加载失败|") << "one of three";
    runLoop.advance(3s);
    EXPECT_EQ(state(), "|行情已 12 秒未更新");
    quoteNext(refused("行情不可用"));
    EXPECT_EQ(state(), "|行情已 15 秒未更新");
    quoteNext(quote("12.31"));
    EXPECT_EQ(state(), "|");
    runLoop.advance(12s);
    EXPECT_EQ(state(), "加载失败|行情已 12 秒未更新");
    screen->chooseStock(stock("000002", "东方钢铁"));
    EXPECT_EQ(state(), "|") << "nothing is old of another stock";
}

TEST_F(OrderEntryTest, AQuoteThatComesLateNeverReplacesANewerOneNorAnotherStocksBook)
{
    openBuying();
    screen->chooseStock(stock("600001", "海天传媒"));
    FakeTransport::Sent &slow = http.last();
    quoteNext(quote("12.40"));
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
    for (const int row : {4, 10, -1})
        screen->sellHandicapView()->selectHandicap(row);
    EXPECT_EQ(screen->price(), "12.34");
    EXPECT_EQ(screen->totalCount(), 810);
    EXPECT_EQ(screen->countText(), "         当前可买入810股");

    notifications.post(TZHandicapView::priceSelectNotification, QVariantMap{{"price", "0.00"}});
    EXPECT_EQ(screen->price(), "0.00");
    for (const QVariant &strange :
         {QVariant(), QVariant("text"), QVariant(QVariantMap{{"price", QVariantList{1}}})})
        notifications.post(TZHandicapView::priceSelectNotification, strange);
    EXPECT_EQ(screen->totalCount(), 810);
    EXPECT_EQ(screen->countText(), "         当前可买入810股");
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
    quoteNext(succeeded(data));
    EXPECT_EQ(sells->rowBeyond(4, 1), 8);
    EXPECT_EQ(sells->rowBeyond(8, -1), 4);
    EXPECT_EQ(sells->rowBeyond(0, -1), -1);
    EXPECT_EQ(sells->rowBeyond(9, 1), -1);
    sells->setKeyRow(9);
    data["sellPankou"] = QVariantList{data["sellPankou"].toList().at(0)};
    quoteNext(succeeded(data));
    EXPECT_EQ(sells->keyRow(), 4) << "the level that the keyboard left is gone, the side is not";
}

TEST_F(OrderEntryTest, ALevelIsDrawnWithItsPriceAndAVolumeThatHasRoomBesideIt)
{
    openWithEntry();
    const struct {
        const char *price, *volume, *drawn;
    } table[] = {{"12.34", "99999", "12.34 99999"},
                 {"12.34", "100000", "12.34 10.0万"},
                 {"12.34", "1296400", "12.34 129.6万"},
                 {"12.34", "123456700", "12.34 1.2亿"},
                 {"0.00", "0", "-- --"},
                 {"0", "500", "-- --"},
                 {"x", "500", "-- --"}};
    for (const auto &[price, volume, drawn] : table) {
        const QVariantList levels{QVariantMap{{"price", price}, {"volume", volume}}};
        quoteNext(succeeded(QVariantMap{{"match", "12.30"}, {"buyPankou", levels}}));
        const HandicapRow &row = screen->buyHandicapView()->rows()->at(0);
        EXPECT_EQ(row.price + u' ' + row.volume, drawn);
        EXPECT_EQ(row.selectable, row.price != "--");
    }
    screen->buyHandicapView()->selectHandicap(0);
    EXPECT_EQ(screen->price(), "12.34") << "what is no price is not picked";
}

TEST_F(OrderEntryTest, ATypedPriceIsCountedATenthOfASecondLaterAlsoWhileTypingGoesOn)
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
        enter("12.34", "");
        enter(nothing, "");
        EXPECT_EQ(screen->countText(), "") << qPrintable(nothing);
        EXPECT_EQ(screen->totalCount(), 810);
    }
    for (const QString typed : {"1", "12", "12.", "12.3"}) {
        screen->editPrice(typed);
        runLoop.advance(50ms);
    }
    EXPECT_EQ(screen->totalCount(), 813);
}

TEST_F(OrderEntryTest, LeavingEndsItsOwnEditingAndThatOfNobodyElse)
{
    openBuying();
    int own = 0;
    QList<const KRBaseController *> ended;
    QObject::connect(screen, &KRBaseController::editingEnded, screen, [&own] { ++own; });
    QObject::connect(&window, &KRWindow::editingEnded, &window,
                     [this, &ended] { ended.append(stack().top()); });
    push<KRBaseController>();
    stack().pop();
    cover()->dismiss();
    EXPECT_EQ(own, 2);
    EXPECT_TRUE(ended.isEmpty()) << "by then the keyboard belongs to what came over it";

    const int depth = stack().depth();
    screen->gotoSelectStock();
    EXPECT_EQ(ended, QList<const KRBaseController *>{screen}) << "before the search is there";
    screen->gotoSelectStock();
    EXPECT_EQ(stack().depth(), depth + 1) << "a double click opens one search";
}

TEST_F(OrderEntryTest, MoneyThatIsNotKnownIsNotZeroAndIsAskedForAgain)
{
    const QString buyPage = "buyPage";
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
    http.answer(buyPage, succeeded(10000.0));
    EXPECT_EQ(screen->countText(), "         当前可买入810股");
    submitEntry();
    EXPECT_EQ(http.countOf(buyPath), 1);
    EXPECT_EQ(http.countOf(buyPage), 4);
}

TEST_F(OrderEntryTest, QuickButtonsWriteWholeLots)
{
    openBuying();
    screen->selectFraction(OrderEntryRules::All);
    EXPECT_EQ(screen->quantity(), "0");
    enter(" 12.34\t", "　900 ");
    EXPECT_EQ(screen->price() + screen->quantity(), "12.34900") << "blanks around what is pasted are dropped";
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
    screen->editQuantity("1 00");
    EXPECT_EQ(screen->quantity(), "12345678");
    EXPECT_EQ(screen->selectedFraction(), -1);

    openBuying("-100000");
    enter("12.34", "");
    screen->selectFraction(OrderEntryRules::All);
    EXPECT_EQ(screen->quantity(), "0") << "a debt buys nothing";
}

TEST_F(OrderEntryTest, ChoosingAStockEmptiesTheEntry)
{
    openWithEntry();
    screen->chooseStock(stock("000002", "东方钢铁"));
    EXPECT_EQ(screen->price() + screen->quantity() + screen->countText(), "");
    EXPECT_EQ(screen->stockText(), "东方钢铁(000002)");
}

TEST_F(OrderEntryTest, TheFirstFaultIsSaidAndNothingIsSent)
{
    const struct {
        QString code, price, quantity, buying, selling;
    } table[] = {
        {"", "", "", "请输入股票代码", "请输入正确的股票代码"},
        {"", "12.34", "100", "请输入股票代码", "请输入正确的股票代码"},
        {"600001", "", "", "请输入买入价格", "请输入卖出价格"},
        {"600001", "", "150", "请输入买入价格", "请输入卖出价格"},
        {"600001", "12.34", "", "请输入买入数量", "请输入卖出数量"},
        {"600001", "12.34", "0", "买入数量须为100的整数倍", "卖出数量须为100的整数倍"},
        {"600001", "12.34", "810", "买入数量须为100的整数倍", "卖出数量须为100的整数倍"},
        {"600001", "12.34", "99999950", "买入数量须为100的整数倍", "卖出数量须为100的整数倍"},
        {"600001", "12.34", "900", "超过交易数量上限", "超过交易数量上限"},
        {"600001", "12.34", "99999900", "超过交易数量上限", "超过交易数量上限"},
    };
    for (const OrderSide side : {OrderSide::Buy, OrderSide::Sell}) {
        for (const auto &each : table) {
            TZZorvanePageStocksModel model;
            model.stockCode = each.code;
            model.availableShares = "810";
            screen = push<TZBuyAndSellController>(side, model);
            http.answer("buyPage", succeeded("10000.00"));
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
