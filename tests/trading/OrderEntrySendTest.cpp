#include "tests/trading/OrderEntryFixture.h"
#include "trading/screens/UnknownOrders.h"

TEST_F(OrderEntryTest, TapsWithinHalfASecondSendOneOrderHalfASecondAfterTheLast)
{
    openWithEntry();
    for (int tap = 0; tap < 3; ++tap) {
        screen->submit();
        runLoop.advance(499ms);
    }
    EXPECT_EQ(http.countOf(buyPath), 0);
    runLoop.advance(1ms);
    EXPECT_EQ(http.countOf(buyPath), 1);
    EXPECT_EQ(http.pending(buyPath).fields(),
              (QVariantMap{{"stockCode", "600001"}, {"entrustShares", "800"}, {"entrustPrice", "12.34"}}));
    runLoop.advance(10s);
    EXPECT_EQ(http.countOf(buyPath), 1);
}

TEST_F(OrderEntryTest, NoSecondOrderGoesAndTheScreenStaysWhileOneIsOnItsWay)
{
    openWithEntry();
    QList<bool> leaving;
    QObject::connect(screen, &KRBaseController::barChanged, screen,
                     [&] { leaving.append(screen->canBeLeft()); });
    submitEntry();
    http.answer(quotePath, refused("行情不可用"));
    EXPECT_TRUE(overlays.isWaiting()) << "the order is still on its way";
    screen->submit();
    screen->backButtonClicked();
    runLoop.advance(14s);
    EXPECT_EQ(http.countOf(buyPath), 1);
    EXPECT_EQ(top<TZBuyAndSellController>(), screen);

    http.fail(buyPath, HttpFailure::Offline);
    EXPECT_EQ(lastBanner(), "加载失败");
    EXPECT_EQ(alert(), nullptr);
    EXPECT_EQ(screen->quantity(), "800");
    submitEntry();
    EXPECT_EQ(http.countOf(buyPath), 2);
    http.answer(buyPath, refused("资金不足"));
    EXPECT_EQ(leaving, (QList<bool>{false, true, false, true})) << "the view is told";
    screen->backButtonClicked();
    EXPECT_EQ(top<TZBuyAndSellController>(), nullptr);
}

TEST_F(OrderEntryTest, ThePasswordSendsTheOrderThatWasRefusedWithoutIt)
{
    openWithEntry();
    submitEntry();
    enter("99", "150");
    http.answer(buyPath, refusedAs("12000", "请输入交易密码"));
    typePassword("123456");
    const QVariantMap sent = http.pending(buyPath).fields();
    EXPECT_EQ(sent.value("entrustPrice").toString() + sent.value("entrustShares").toString(), "12.34800");
}

TEST_F(OrderEntryTest, ASubmissionThatAnotherScreenBreaksIsSaidAndNothingIsSent)
{
    openWithEntry();
    screen->submit();
    push<KRBaseController>();
    runLoop.advance(1s);
    EXPECT_EQ(lastBanner(), "委托没有提交，请重新提交");
    EXPECT_EQ(screen->quantity(), "800");
    stack().pop();
    screen->submit();
    screen->backButtonClicked();
    runLoop.advance(1s);
    EXPECT_EQ(http.countOf(buyPath), 0);
}

TEST_F(OrderEntryTest, AnEntryChangedInTheHalfSecondIsCheckedAgain)
{
    openWithEntry();
    screen->submit();
    screen->editQuantity("99999900");
    runLoop.advance(500ms);
    EXPECT_EQ(lastBanner(), "超过交易数量上限");
    EXPECT_EQ(http.countOf(buyPath), 0);
}

TEST_F(OrderEntryTest, EditingEndsWhenAnOrderGoesAndWhenThePasswordIsAskedFor)
{
    openWithEntry();
    int ended = 0;
    QObject::connect(&window, &KRWindow::editingEnded, screen, [&ended] { ++ended; });
    const auto hasEnded = [&ended] { return std::exchange(ended, 0) > 0; };
    screen->submit();
    EXPECT_FALSE(hasEnded()) << "the entry may still be edited";
    runLoop.advance(500ms);
    EXPECT_TRUE(hasEnded());
    http.answer(buyPath, refusedAs("12000"));
    EXPECT_TRUE(hasEnded());
    prompt()->cancel();
    settings.setValue(SettingsKeys::needTradePwd, true);
    ended = 0;
    screen->submit();
    EXPECT_TRUE(hasEnded());
}

TEST_F(OrderEntryTest, TheFirstOrderAsksForThePasswordTheNextDoesNot)
{
    settings.setValue(SettingsKeys::needTradePwd, true);
    openWithEntry();
    screen->submit();
    screen->submit();
    ASSERT_NE(prompt(), nullptr);
    EXPECT_EQ(window.dialogs()->count(), 1);
    runLoop.advance(5s);
    EXPECT_EQ(http.countOf(buyPath), 0);

    screen->checkTradePwd(QString());
    EXPECT_EQ(lastBanner(), "请输入交易密码");
    EXPECT_NE(prompt(), nullptr);
    EXPECT_EQ(http.countOf(buyPath), 0);

    typePassword("123456");
    EXPECT_EQ(prompt(), nullptr);
    EXPECT_EQ(http.pending(buyPath).fields().value("tradePassword"), "123456");
    const int flushes = settings.flushes;
    http.answer(buyPath, placed(77));
    EXPECT_EQ(settings.value(SettingsKeys::needTradePwd), false);
    EXPECT_GT(settings.flushes, flushes);
    ASSERT_NE(alert(), nullptr);
    alert()->cancel();

    enter("12.34", "100");
    submitEntry();
    EXPECT_FALSE(http.pending(buyPath).fields().contains("tradePassword"));
}

TEST_F(OrderEntryTest, AMissingOrRefusedPasswordBringsThePromptBack)
{
    for (const QVariant &code : {QVariant("12000"), QVariant("12002"), QVariant(12000), QVariant(12002.0)}) {
        openWithEntry();
        submitEntry();
        for (const auto &[message, told] : {std::pair("", ""), std::pair("交易密码错误", "交易密码错误"),
                                            std::pair("", "交易密码不正确，请重试")}) {
            overlays.hideBanners();
            http.answer(buyPath, refusedAs(code, message));
            EXPECT_EQ(lastBanner(), told);
            typePassword("123456");
        }
        EXPECT_EQ(http.pending(buyPath).fields().value("tradePassword"), "123456");
        http.answer(buyPath, placed("9"));
        ASSERT_NE(alert(), nullptr);
        alert()->leftBtnClick();
        settle();
    }
}

TEST_F(OrderEntryTest, CoveredItNamesTheOrderThatWantsThePasswordAndDoesNotAsk)
{
    openWithEntry();
    submitEntry();
    cover()->dismiss();
    EXPECT_TRUE(overlays.isWaiting()) << "back at an order that is still on its way";
    cover();
    http.answer(buyPath, refusedAs("12000"));
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->ensureText(), "买入 海天传媒(600001)\n12.34元 × 800股\n\n请重新提交");
}

TEST_F(OrderEntryTest, AnyOtherRefusalShowsOnlyTheServersMessageAndKeepsTheEntry)
{
    openWithEntry();
    for (const QVariant &code :
         {QVariant("12001"), QVariant(), QVariant("abc"), QVariant(QVariantList{12000})}) {
        submitEntry();
        http.answer(buyPath, refusedAs(code, "可用资金不足"));
        EXPECT_EQ(lastBanner(), "可用资金不足");
        EXPECT_EQ(window.dialogs()->count(), 0);
        EXPECT_EQ(screen->price() + screen->quantity(), "12.34800");
    }
}

TEST_F(OrderEntryTest, AnAcceptedAnswerWithoutAnIdentifierShowsNothing)
{
    for (const QVariant &data : {QVariant(), QVariant("x"), QVariant(QVariantMap{{"id", ""}}),
                                 QVariant(QVariantMap{{"id", QVariant::fromValue(nullptr)}})}) {
        settings.setValue(SettingsKeys::needTradePwd, false);
        openWithEntry();
        submitEntry();
        settings.setValue(SettingsKeys::needTradePwd, true);
        http.answer(buyPath, succeeded(data));
        EXPECT_EQ(settings.value(SettingsKeys::needTradePwd), false);
        EXPECT_EQ(alert(), nullptr);
        EXPECT_EQ(screen->quantity(), "800");
        settings.remove(UnknownOrders::settingsKey);
    }
}

TEST_F(OrderEntryTest, APlacedBuyOffersTheTradingPageOrAnotherStock)
{
    openWithEntry();
    submitEntry();
    http.answer(buyPath, placed("9"));
    EXPECT_EQ(screen->price() + screen->quantity() + screen->countText(), "");
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->titleText(), "委托挂单成功");
    EXPECT_EQ(alert()->leftTitle(), "实盘炒股");
    EXPECT_EQ(alert()->rightTitle(), "继续买入");

    alert()->rightBtnClick();
    EXPECT_NE(top<TZSelectStockController>(), nullptr);
    screen->chooseStock(stock("000002", "东方钢铁"));
    stack().pop();
    EXPECT_EQ(screen->stockText(), "东方钢铁(000002)");

    enter("12.34", "100");
    submitEntry();
    http.answer(buyPath, placed("10"));
    const int depth = stack().depth();
    alert()->leftBtnClick();
    EXPECT_EQ(stack().depth(), depth - 1);
}

TEST_F(OrderEntryTest, APlacedSaleReloadsTheHoldingsAndGoesBackToTheSecondScreen)
{
    KRBaseController *const second = push<KRBaseController>();
    push<KRBaseController>();
    openSelling();
    enter("12.34", "1200");
    submitEntry();
    EXPECT_EQ(http.countOf(buyPath), 0);
    http.answer(sellPath, placed("9"));
    EXPECT_EQ(holdings.reloads, 1);
    EXPECT_FALSE(overlays.isWaiting()) << "the indicator of the list below would cover the result";
    EXPECT_EQ(alert()->rightTitle(), "继续卖出");
    alert()->rightBtnClick();
    EXPECT_EQ(stack().top(), second);
}

TEST_F(OrderEntryTest, ThePromptGoesWithItsScreen)
{
    settings.setValue(SettingsKeys::needTradePwd, true);
    openWithEntry();
    screen->submit();
    prompt()->setInputTextField("123456");
    stack().pop();
    settle();
    runLoop.advance(2s);
    EXPECT_EQ(http.countOf(buyPath), 0);
    EXPECT_EQ(window.dialogs()->count(), 0);
}
