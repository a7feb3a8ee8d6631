#include "core/util/Service.h"
#include "tests/trading/UnknownOrderFixture.h"
#include "trading/api/TZTradeTool.h"

TEST_F(UnknownOrderTest, IsSaidAndLookedForAndFoundWithItsStatus)
{
    openAndLose();
    EXPECT_EQ(lastBanner(), "加载失败");
    EXPECT_EQ(said(), "委托结果未知");
    EXPECT_TRUE(says("买入 海天传媒(600001)\n12.34元 × 800股"));
    EXPECT_EQ(http.last().path(), entrustsPath);
    EXPECT_EQ(http.last().fields(), QVariantMap());
    EXPECT_FALSE(overlays.isWaiting()) << "the dialog says itself that it searches";

    answerEntrusts({with(entrust("8"), "stockCode", "600002"), with(entrust("7"), "type", "2"),
                    with(entrust("6"), "entrustPrice", "12.35"), with(entrust("5"), "entrustShares", "900"),
                    entrust("4")});
    EXPECT_EQ(said(), "已找到这笔委托");
    EXPECT_TRUE(says("\n\n委托编号 10004\n状态：委托中\n提交时间"));
    EXPECT_EQ(screen->price() + screen->quantity(), "");
    EXPECT_EQ(alert()->rightTitle(), "继续买入");
    alert()->rightBtnClick();
    EXPECT_NE(top<TZSelectStockController>(), nullptr);
    EXPECT_EQ(http.countOf(buyPath), 1);
}

TEST_F(UnknownOrderTest, OnlyAnOutcomeThatProvesNothingIsUnknown)
{
    const auto json = [](int status, const QByteArray &body, bool redirected = false) {
        return HttpResponse{status, "application/json", body, redirected};
    };
    const QList<HttpOutcome> unknown{
        HttpFailure::TimedOut,
        HttpFailure::Connection,
        HttpFailure::Cancelled,
        json(200, "{"),
        HttpResponse{502, "text/html", "<html>"},
        json(200, "{}"),
        json(200, R"({"error": "upstream"})"),
        json(200, R"({"success": null, "data": {"id": "5"}})"),
        json(401, "{}", true),
        json(404, "<html>", true),
        json(200, R"({"success": false, "message": "请登录"})", true),
    };
    const QList<HttpOutcome> known{
        HttpFailure::Offline,
        HttpFailure::Tls,
        json(400, "{}"),
        json(200, R"({"success": false})"),
        json(200, R"({"message": "资金不足"})"),
        json(200, R"({"code": 4001})"),
    };
    openWithEntry();
    for (const HttpOutcome &outcome : unknown) {
        SCOPED_TRACE(http.count());
        enter("12.34", "800");
        lose(outcome);
        EXPECT_EQ(said(), "委托结果未知");
        answerEntrusts({entrust(QString::number(http.count()))});
        ASSERT_NE(alert(), nullptr);
        alert()->cancel();
    }
    for (const HttpOutcome &outcome : known) {
        enter("12.34", "800");
        lose(outcome);
        EXPECT_EQ(said(), "");
        EXPECT_EQ(screen->quantity(), "800");
    }
    EXPECT_EQ(http.countOf(buyPath), unknown.size() + known.size());
}

TEST_F(UnknownOrderTest, IsLookedForAgainBeforeItIsSaidNotToBeThere)
{
    openAndLose();
    answerPage({with(entrust("3"), "entrustShares", "100")});
    EXPECT_EQ(http.pending(entrustsPath).fields(), (QVariantMap{{"page", "1"}}));
    answerPage({});
    EXPECT_EQ(said(), "委托结果未知");
    runLoop.advance(2999ms);
    EXPECT_FALSE(http.hasPending(entrustsPath));
    runLoop.advance(1ms);
    answerEntrusts({entrust("4"), with(entrust("3"), "entrustShares", "100")});
    EXPECT_EQ(said(), "已找到这笔委托");
    alert()->cancel();

    loseNext();
    // A service without pages repeats itself.
    for (int look = 0; look < 2; ++look) {
        answerPage({entrust("4")});
        answerPage({entrust("4")});
        runLoop.advance(3s);
    }
    EXPECT_EQ(said(), "未找到这笔委托");
    EXPECT_EQ(screen->price() + screen->quantity(), "12.34800");
    EXPECT_FALSE(http.hasPending(entrustsPath));
}

TEST_F(UnknownOrderTest, IsFoundOnAFurtherPageAndNotSoughtBeyondItsTime)
{
    openWithEntry();
    quoteAt(1000);
    lose();
    const auto other = [](const QString &id, int time) {
        return with(entrust(id, time), "stockCode", "000002");
    };
    answerPage({other("9", 1300), other("8", 1200)});
    answerPage({entrust("7", 1100), other("6", 900)});
    EXPECT_EQ(said(), "已找到这笔委托");
    alert()->cancel();

    loseNext();
    const QVariantList whole{other("9", 1300), entrust("7", 1100), other("6", 900)};
    answerPage(whole);
    EXPECT_FALSE(http.hasPending(entrustsPath)) << "everything further is older than the order";
    runLoop.advance(3s);
    answerPage(whole);
    EXPECT_EQ(said(), "未找到这笔委托");

    runLoop.advance(500ms);
    alert()->rightBtnClick();
    answerPage({other("9", 900), other("8", 900)});
    EXPECT_TRUE(http.hasPending(entrustsPath)) << "one time for all does not say that the newest come first";
}

TEST_F(UnknownOrderTest, OnlyStampsOfTheServicesClockSayWhatIsOlder)
{
    // What the quotes say, what the entrust says; whether it may be the order, and is surely it; when the
    // quotes were answered.
    struct Case {
        QVariantList quotes;
        QVariant createdAt;
        bool found;
        bool certain;
        qint64 answeredAt = 0;
    };
    const auto stamp = [](int time) { return QString::number(seconds(time)); };
    const Case cases[] = {
        {{stamp(100)}, stamp(100), true, true},
        {{stamp(100)}, stamp(41), true, true},
        {{stamp(100)}, stamp(39), false, false},
        {{stamp(100), QVariant()}, stamp(39), false, false},
        {{stamp(100), "1600000100"}, stamp(39), false, false},
        {{stamp(100)}, "2026-11-21 10:00:00", true, false},
        {{stamp(100)}, "1600000000", true, false},
        {{stamp(100)}, QVariant(), true, false},
        {{}, stamp(39), true, false},
        {{"1600000100"}, stamp(39), true, false},
        {{QVariant()}, stamp(41), true, true, seconds(100)},
        {{QVariant()}, stamp(39), false, false, seconds(100)},
        {{stamp(100)}, stamp(41), true, true, seconds(900)},
    };
    for (const Case &c : cases) {
        http.date = c.answeredAt;
        OrderEntryTest::openWithEntry();
        for (const QVariant &time : c.quotes)
            quoteAt(time);
        lose();
        const QVariantList books{
            with(entrust(QString::number(http.count())), "createdAt", c.createdAt),
        };
        answerEntrusts(books);
        if (!c.found) {
            runLoop.advance(3s);
            answerEntrusts(books);
        }
        SCOPED_TRACE(c.createdAt.toString().toStdString());
        EXPECT_EQ(said(), !c.found ? "未找到这笔委托" : c.certain ? "已找到这笔委托" : "可能找到了这笔委托");
        EXPECT_EQ(says("可能是这笔"), c.found && !c.certain);
        EXPECT_EQ(UnknownOrders::all().isEmpty(), c.certain);
        EXPECT_EQ(screen->quantity(), c.certain ? "" : "800");
        alert()->cancel();
        settings.remove(UnknownOrders::settingsKey);
        stack().pop();
        settle();
    }
}

TEST_F(UnknownOrderTest, AnOrderOfTheSameKindThatStoodBeforeIsNotTakenForIt)
{
    // One that was answered, one that was found, one in the list of today that was read, one older by time.
    openWithEntry();
    submitEntry();
    http.answer(buyPath, placed(1));
    alert()->cancel();
    loseNext();
    answerEntrusts({entrust("2"), entrust("1")});
    EXPECT_EQ(said(), "已找到这笔委托");
    alert()->cancel();
    TZTradeTool::getEntrustsTodayWithParam({}, {}, {});
    answerPage({entrust("3"), entrust("2"), entrust("1")});
    quoteAt(200);
    loseNext();
    const QVariantList before{entrust("3", 200), entrust("4", 100), entrust("2"), entrust("1")};
    findNothing(before);

    alert()->rightBtnClick();
    answerEntrusts(QVariantList{entrust("5", 200)} + before);
    EXPECT_EQ(said(), "已找到这笔委托");
    EXPECT_TRUE(says("10005"));
}

TEST_F(UnknownOrderTest, EntrustsThatCannotBeReadAreSaidAndReadAgainOnDemand)
{
    openAndLose();
    http.fail(entrustsPath, HttpFailure::TimedOut);
    EXPECT_TRUE(says("没有读到今日委托"));
    EXPECT_EQ(banners(), QStringList("加载失败")) << "that of the order; the dialog says the rest";
    overlays.hideBanners();
    const QList<QVariantMap> garbage{
        refused("系统繁忙"),
        {{"success", true}},
        succeeded(QVariant::fromValue(nullptr)),
        succeeded(QVariantMap{{"0", entrust("4")}}),
        succeeded(QVariantList{QVariant::fromValue(nullptr)}),
        succeeded(QVariantList{with(entrust("3"), "id", "")}),
        succeeded(QVariantList{"", entrust("4")}),
    };
    for (const QVariantMap &answer : garbage) {
        runLoop.advance(500ms);
        alert()->rightBtnClick();
        EXPECT_EQ(said() + alert()->leftTitle(), "委托结果未知");
        http.answer(entrustsPath, answer);
        EXPECT_TRUE(says("没有读到今日委托")) << garbage.indexOf(answer);
        EXPECT_FALSE(http.hasPending(entrustsPath));
        EXPECT_TRUE(banners().isEmpty());
    }

    // Without a network the stored copy is no proof, even when such an order is in it.
    const QVariant copy = succeeded(QVariantList{entrust("4")});
    settings.setValue(TZTradeTool::entrustsTodayKey, copy);
    settings.setValue(SettingsKeys::networkStatus, false);
    runLoop.advance(500ms);
    alert()->rightBtnClick();
    http.fail(entrustsPath, HttpFailure::Offline);
    EXPECT_TRUE(says("没有读到今日委托"));
    settings.setValue(SettingsKeys::networkStatus, true);
    runLoop.advance(500ms);
    alert()->rightBtnClick();
    answerEntrusts({entrust("5")});
    EXPECT_EQ(said(), "已找到这笔委托");
    EXPECT_EQ(settings.value(TZTradeTool::entrustsTodayKey), copy) << "what the list shows offline";
}

TEST_F(UnknownOrderTest, IsReadQuietlyWhenOrderEntryOpensAfterAKill)
{
    openWithEntry();
    submitEntry();
    leave();
    runLoop.advance(1min);
    http.fail(entrustsPath, HttpFailure::TimedOut);
    openBuying();
    runLoop.advance(1ms);
    http.fail(entrustsPath, HttpFailure::TimedOut);
    EXPECT_EQ(alert(), nullptr);
    openWithEntry();
    runLoop.advance(1ms);
    FakeTransport::Sent &reading = http.pending(entrustsPath);
    enter("12.34", "100");
    submitEntry();
    http.answer(reading, succeeded(QVariantList{entrust("4")}));
    EXPECT_FALSE(http.hasPending(entrustsPath)) << "it began before this order went out";
    http.answer(buyPath, refused("资金不足"));
    enter("12.50", "100");
    runLoop.advance(30s);
    answerEntrusts({entrust("4")});
    EXPECT_EQ(said(), "已找到这笔委托");
    EXPECT_EQ(screen->price(), "12.50") << "another entry stays";
    alert()->cancel();
    openBuying();
    runLoop.advance(1min);
    EXPECT_FALSE(http.hasPending(entrustsPath));
}

TEST_F(UnknownOrderTest, TheQuietReadingDisturbsNobody)
{
    openWithEntry();
    submitEntry();
    leave();
    runLoop.advance(1min);
    Service::showWaitingProgressView();
    FakeTransport::Sent &reading = http.pending(entrustsPath);
    class : public QObject, public TZTradePwdAlertDelegate {
        void checkTradePwd(const QString &) override {}
    } asker;
    TZTradePwdAlertView::showAlertView(window, asker, asker);
    http.answer(reading, succeeded(QVariantList{entrust("4")}));
    EXPECT_FALSE(http.hasPending(entrustsPath));
    EXPECT_EQ(window.dialogs()->count(), 1) << "nothing lies over the password";
    prompt()->cancel();
    runLoop.advance(30s);
    http.fail(entrustsPath, HttpFailure::TimedOut);
    EXPECT_TRUE(overlays.isWaiting()) << "it is that of the screen in front";
    EXPECT_EQ(banners(), QStringList());
    EXPECT_EQ(UnknownOrders::all().size(), 1);
}

TEST_F(UnknownOrderTest, ARefusedEntrustKeepsTheEntryAndWhatIsLeftOutIsNotSaid)
{
    openAndLose();
    answerEntrusts({with(with(entrust("4"), "status", "9"), "errorMsg", "价格超出涨跌停")});
    EXPECT_TRUE(says("废单"));
    EXPECT_TRUE(says("价格超出涨跌停"));
    EXPECT_EQ(alert()->leftTitle(), "");
    EXPECT_EQ(screen->quantity(), "800");
    alert()->cancel();

    lose();
    answerEntrusts({with(with(entrust("5"), "entrustNo", ""), "status", "")});
    EXPECT_EQ(said(), "已找到这笔委托");
    EXPECT_FALSE(says("委托编号"));
    EXPECT_FALSE(says("状态"));
}

TEST_F(UnknownOrderTest, IsRememberedBeyondItsScreenUntilItsUserSignsOutOrTheDayEnds)
{
    const auto asks = [this] {
        openWithEntry();
        submitEntry();
        const bool asked = said() == "确认再次提交";
        if (asked)
            alert()->cancel();
        else
            http.answer(buyPath, refused("资金不足"));
        stack().pop();
        settle();
        return asked;
    };
    // The screen is gone before anything is known: as after a kill of the process in the middle.
    openWithEntry();
    submitEntry();
    FakeTransport::Sent &lost = http.last();
    leave();
    EXPECT_TRUE(asks());
    runLoop.advance(24h);
    http.answerRaw(lost, HttpFailure::TimedOut);
    EXPECT_EQ(said(), "委托结果未知");
    alert()->cancel();
    settle();
    EXPECT_TRUE(asks());

    const QVariant user = settings.value(SettingsKeys::user);
    settings.setValue(SettingsKeys::user, QVariantMap{{"api_token", "other"}, {"cell", "13900139000"}});
    EXPECT_FALSE(asks());
    settings.setValue(SettingsKeys::user, user);
    openAndLose();
    alert()->cancel();
    stack().pop();
    EXPECT_TRUE(asks());
    // Midnight, here and there: the question stays until the entrusts could be read.
    runLoop.advance(24h);
    EXPECT_TRUE(asks());
    Service::logout();
    signIn();
    settings.setValue(SettingsKeys::networkStatus, true);
    settings.setValue(SettingsKeys::needTradePwd, false);
    EXPECT_FALSE(asks());
}

TEST_F(UnknownOrderTest, AnOutcomeAfterAMessageLedAwayFromItsScreenIsToldAndRecorded)
{
    struct Case {
        QVariantMap answer;
        QString title;
        QString news;
        bool needsPassword;
        qsizetype unknown;
    };
    const QString order = "买入 海天传媒(600001)\n12.34元 × 800股";
    const Case cases[] = {
        {placed("1"), "委托挂单成功", order, false, 0},
        {succeeded(), "", "", false, 1},
        {refused("资金不足"), "委托未成功", order + "\n\n资金不足", true, 0},
        {with(refused(""), "code", "12000"), "委托未成功", order + "\n\n请重新提交", true, 0},
    };
    for (const Case &c : cases) {
        settings.remove(UnknownOrders::settingsKey);
        settings.setValue(SettingsKeys::needTradePwd, true);
        openWithEntry();
        screen->submit();
        typePassword("123456");
        KRNavigationController *const message = cover();
        window.sideMenu()->setContent(
            std::make_unique<KRNavigationController>(std::make_unique<KRBaseController>()));
        message->dismiss();
        settle();
        http.answer(buyPath, c.answer);
        EXPECT_EQ(said(), c.title);
        EXPECT_EQ(alert() ? alert()->ensureText() : "", c.news);
        EXPECT_EQ(settings.value(SettingsKeys::needTradePwd), c.needsPassword);
        EXPECT_EQ(UnknownOrders::all().size(), c.unknown);
        EXPECT_EQ(prompt(), nullptr);
        if (alert()) {
            EXPECT_EQ(alert()->leftTitle() + alert()->rightTitle(), "知道了");
            alert()->rightBtnClick();
        }
        settle();
    }
}

TEST_F(UnknownOrderTest, TheFindingIsSaidWhenTheScreenIsGoneAndNotToAnotherUser)
{
    openAndLose();
    leave();
    answerEntrusts({entrust("4")});
    EXPECT_EQ(said(), "已找到这笔委托");
    EXPECT_EQ(alert()->leftTitle(), "");
    alert()->rightBtnClick();

    for (const HttpOutcome &outcome :
         {HttpOutcome(HttpFailure::TimedOut),
          HttpOutcome(HttpResponse{200, "application/json", R"({"success": true, "data": {"id": 1}})"})}) {
        signIn();
        settings.setValue(SettingsKeys::needTradePwd, false);
        settings.remove(UnknownOrders::settingsKey);
        openWithEntry();
        submitEntry();
        settings.setValue(SettingsKeys::user, QVariantMap{{"api_token", "other"}, {"cell", "13900139000"}});
        settings.setValue(SettingsKeys::needTradePwd, true);
        http.answerRaw(http.pending(buyPath), outcome);
        EXPECT_EQ(alert(), nullptr);
        EXPECT_EQ(settings.value(SettingsKeys::needTradePwd), true);
    }
}

TEST_F(UnknownOrderTest, IsWrittenDownBeforeItIsSentAndHoldsNoSecret)
{
    settings.setValue(SettingsKeys::needTradePwd, true);
    openWithEntry();
    screen->submit();
    const int flushes = settings.flushes;
    typePassword("246813");
    EXPECT_GT(settings.flushes, flushes);
    QString written;
    QDebug(&written) << settings.value(UnknownOrders::settingsKey);
    EXPECT_TRUE(written.contains("600001"));
    EXPECT_FALSE(written.contains("246813"));
    EXPECT_FALSE(written.contains("t0ken"));
}
