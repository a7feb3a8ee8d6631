#include "core/util/Service.h"
#include "tests/trading/OrderEntryFixture.h"
#include "trading/api/TZTradeTool.h"
#include "trading/screens/UnknownOrders.h"

namespace {
const QString entrustsPath = QStringLiteral("entrustsToday");

/// Milliseconds on the service's clock, which is not the device's.
qint64 seconds(int count)
{
    return 1'600'000'000'000 + count * 1000;
}

QVariantMap entrust(const QString &id, int createdAt = 0)
{
    return {{"id", id},      {"entrustNo", "1000" + id}, {"stockCode", "600001"},
            {"type", "1"},   {"entrustPrice", "12.340"}, {"entrustShares", "800"},
            {"status", "2"}, {"errorMsg", ""},           {"createdAt", QString::number(seconds(createdAt))}};
}

QVariantMap with(QVariantMap map, const QString &key, const QVariant &value)
{
    map.insert(key, value);
    return map;
}
} // namespace

/// A purchase of 800 at 12.34, and what becomes of it.
class UnknownOrderTest : public OrderEntryTest {
protected:
    UnknownOrderTest()
    {
        reachability.change(NetworkStatus::ReachableViaWiFi);
        settings.setValue(SettingsKeys::networkStatus, true);
    }

    /// Sends the order of the entry; no answer comes back.
    void lose(const HttpOutcome &outcome = HttpFailure::TimedOut)
    {
        submitEntry();
        http.answerRaw(http.pending(buyPath), outcome);
    }
    void loseNext()
    {
        enter("12.34", "800");
        lose();
    }
    /// The service tells its time with every quote.
    void quoteAt(const QVariant &time)
    {
        QVariantMap answer = quote("12.30");
        answer["data"] = with(answer["data"].toMap(), "time", time);
        http.answer(quotePath, answer);
        runLoop.advance(3s);
    }
    void quoteAt(int time) { quoteAt(QString::number(seconds(time))); }
    void answerPage(const QVariantList &entrusts) { http.answer(entrustsPath, succeeded(entrusts)); }
    /// All there is today.
    void answerEntrusts(const QVariantList &entrusts)
    {
        answerPage(entrusts);
        if (!entrusts.isEmpty() && http.hasPending(entrustsPath))
            answerPage({});
    }
    void findNothing(const QVariantList &entrusts = {})
    {
        answerEntrusts(entrusts);
        runLoop.advance(3s);
        answerEntrusts(entrusts);
        EXPECT_EQ(said(), "未找到这笔委托");
    }
    /// Goes through the question, and the reading that follows it.
    void submitAgain(const QVariantList &entrusts)
    {
        submitEntry();
        EXPECT_EQ(said(), "确认再次提交");
        alert()->leftBtnClick();
        answerEntrusts(entrusts);
        runLoop.advance(500ms);
    }
    QString said() { return alert() ? alert()->titleText() : QString(); }
    bool says(const QString &part) { return alert() && alert()->ensureText().contains(part); }
};

TEST_F(UnknownOrderTest, IsSaidAndLookedForAndFoundWithItsStatus)
{
    openWithEntry();
    quoteAt(0);
    lose();
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
    EXPECT_TRUE(says("\n\n委托编号 10004，状态：委托中，提交时间"));
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
    openWithEntry();
    lose();
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
}

TEST_F(UnknownOrderTest, OnlyStampsOfTheServicesClockSayWhatIsOlder)
{
    // What the quotes say, what the entrust says; whether it may be the order, and is surely it.
    struct Case {
        QVariantList quotes;
        QVariant createdAt;
        bool found;
        bool certain;
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
    };
    for (const Case &c : cases) {
        openWithEntry();
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
        EXPECT_EQ(said(), c.found ? "已找到这笔委托" : "未找到这笔委托");
        EXPECT_EQ(says("可能是这笔"), c.found && !c.certain);
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
    http.answer(buyPath, succeeded(QVariantMap{{"id", 1}}));
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

    alert()->leftBtnClick();
    answerEntrusts(QVariantList{entrust("5", 200)} + before);
    EXPECT_EQ(said(), "已找到这笔委托");
    EXPECT_TRUE(says("10005"));
}

TEST_F(UnknownOrderTest, EntrustsThatCannotBeReadAreSaidAndReadAgainOnDemand)
{
    openWithEntry();
    lose();
    http.fail(entrustsPath, HttpFailure::TimedOut);
    EXPECT_TRUE(says("没有读到今日委托"));
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
        alert()->leftBtnClick();
        EXPECT_EQ(said() + alert()->leftTitle(), "委托结果未知");
        http.answer(entrustsPath, answer);
        EXPECT_TRUE(says("没有读到今日委托")) << garbage.indexOf(answer);
        EXPECT_FALSE(http.hasPending(entrustsPath));
    }

    // Without a network the stored copy is no proof, even when such an order is in it.
    settings.setValue(TZTradeTool::entrustsTodayKey, succeeded(QVariantList{entrust("4")}));
    settings.setValue(SettingsKeys::networkStatus, false);
    alert()->leftBtnClick();
    EXPECT_TRUE(says("没有读到今日委托"));
    settings.setValue(SettingsKeys::networkStatus, true);
    alert()->leftBtnClick();
    answerEntrusts({entrust("5")});
    EXPECT_EQ(said(), "已找到这笔委托");
}

TEST_F(UnknownOrderTest, TheFirstOfTwoLostOnesIsFoundWhenOnlyItStands)
{
    openWithEntry();
    quoteAt(0);
    lose();
    http.fail(entrustsPath, HttpFailure::TimedOut);
    alert()->rightBtnClick();
    quoteAt(500);
    TZTradeTool::getEntrustsTodayWithParam({}, {}, {});
    answerPage({entrust("4", 1)});
    submitEntry();
    alert()->leftBtnClick();
    http.fail(entrustsPath, HttpFailure::TimedOut);
    EXPECT_EQ(alert()->leftTitle(), "再次提交") << "the entrusts cannot be read, and the user knows";
    alert()->leftBtnClick();
    runLoop.advance(500ms);
    EXPECT_EQ(http.countOf(buyPath), 2);
    http.fail(buyPath, HttpFailure::TimedOut);
    // It was in a list that was read before the second went out.
    answerEntrusts({entrust("4", 1)});
    EXPECT_EQ(said(), "已找到这笔委托");
    EXPECT_TRUE(says("10004"));
    EXPECT_TRUE(says("另有 1 次提交没有找到"));
    alert()->cancel();

    enter("12.34", "800");
    submitEntry();
    EXPECT_EQ(said(), "确认再次提交") << "the second may still arrive";
    alert()->rightBtnClick();
    answerEntrusts({entrust("5", 501), entrust("4", 1)});
    EXPECT_TRUE(says("10005"));
    alert()->cancel();
    EXPECT_TRUE(UnknownOrders::all().isEmpty());
}

TEST_F(UnknownOrderTest, WhenBothStandBothAreNamed)
{
    openWithEntry();
    quoteAt(0);
    lose();
    findNothing();
    alert()->rightBtnClick();
    submitAgain({});
    http.fail(buyPath, HttpFailure::Connection);
    answerEntrusts({entrust("5", 20), entrust("4", 1)});
    EXPECT_EQ(said(), "已找到 2 笔委托");
    EXPECT_TRUE(says("10004"));
    EXPECT_TRUE(says("10005"));
    EXPECT_FALSE(says("可能是这笔"));
    alert()->cancel();

    loseNext();
    answerEntrusts({entrust("7", 20), entrust("6", 10), entrust("5", 20), entrust("4", 1)});
    EXPECT_EQ(said(), "已找到 2 笔委托");
    EXPECT_TRUE(says("可能是这笔：委托编号 10006")) << "one of them is not this client's";
    EXPECT_TRUE(says("可能是这笔：委托编号 10007"));
}

TEST_F(UnknownOrderTest, WhatArrivesLateIsFoundBeforeTheSecondGoesOutOrToldAfterIt)
{
    openWithEntry();
    quoteAt(0);
    lose();
    findNothing();
    alert()->rightBtnClick();
    submitEntry();
    alert()->leftBtnClick();
    EXPECT_EQ(said(), "再次提交");
    answerEntrusts({entrust("4", 25)});
    EXPECT_EQ(said(), "已找到这笔委托");
    alert()->cancel();
    EXPECT_EQ(http.countOf(buyPath), 1);

    loseNext();
    findNothing({entrust("4", 25)});
    alert()->rightBtnClick();
    submitAgain({entrust("4", 25)});
    http.answer(buyPath, succeeded(QVariantMap{{"id", "6"}}));
    EXPECT_EQ(said(), "委托挂单成功");
    alert()->leftBtnClick();
    settle();
    runLoop.advance(30s);
    answerEntrusts({entrust("6", 60), entrust("5", 50), entrust("4", 25)});
    EXPECT_EQ(said(), "已找到这笔委托") << "the screen is gone, and it is told all the same";
    EXPECT_TRUE(says("10005"));
    EXPECT_TRUE(UnknownOrders::all().isEmpty());
}

TEST_F(UnknownOrderTest, TheQuestionSendsNothingWhenItsReadingIsClosed)
{
    openWithEntry();
    lose();
    findNothing();
    alert()->rightBtnClick();
    submitEntry();
    alert()->leftBtnClick();
    FakeTransport::Sent &reading = http.pending(entrustsPath);
    alert()->cancel();
    settle();
    http.answer(reading, succeeded(QVariantList()));
    runLoop.advance(1s);
    EXPECT_EQ(http.countOf(buyPath), 1);
}

TEST_F(UnknownOrderTest, IsReadQuietlyWhenOrderEntryOpensAfterAKill)
{
    openWithEntry();
    submitEntry();
    stack().pop();
    settle();
    runLoop.advance(1min);
    openBuying();
    runLoop.advance(1ms);
    http.fail(entrustsPath, HttpFailure::TimedOut);
    EXPECT_EQ(alert(), nullptr);
    openBuying();
    enter("12.50", "100");
    answerEntrusts({entrust("4")});
    EXPECT_EQ(said(), "已找到这笔委托");
    EXPECT_EQ(screen->price(), "12.50") << "another entry stays";
    alert()->cancel();
    openBuying();
    runLoop.advance(1min);
    EXPECT_FALSE(http.hasPending(entrustsPath));
}

TEST_F(UnknownOrderTest, ARefusedEntrustKeepsTheEntryAndWhatIsLeftOutIsNotSaid)
{
    openWithEntry();
    quoteAt(0);
    lose();
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

TEST_F(UnknownOrderTest, TheSameOrderAsksForOneConfirmationAnotherOneDoesNot)
{
    openWithEntry();
    lose();
    findNothing();
    alert()->rightBtnClick();

    enter("12.35", "800");
    submitEntry();
    EXPECT_EQ(http.countOf(buyPath), 2) << "another price is another order";
    http.answer(buyPath, refused("资金不足"));

    enter("12.34", "0800");
    submitEntry();
    EXPECT_EQ(said(), "确认再次提交");
    EXPECT_EQ(http.countOf(buyPath), 2);
    alert()->cancel();
    runLoop.advance(1s);
    EXPECT_EQ(http.countOf(buyPath), 2);

    submitAgain({});
    EXPECT_EQ(http.countOf(buyPath), 3);
    http.answer(buyPath, refused("资金不足"));
    submitAgain({});
    EXPECT_EQ(http.countOf(buyPath), 4) << "a refusal says nothing of the first one";
    http.answer(buyPath, succeeded(QVariantMap{{"id", "5"}}));
    EXPECT_EQ(said(), "委托挂单成功");
    alert()->cancel();

    enter("12.34", "800");
    runLoop.advance(6min);
    answerEntrusts({entrust("5")});
    EXPECT_EQ(said(), "") << "what is missing for so long never arrived";
    submitEntry();
    EXPECT_EQ(http.countOf(buyPath), 5);
}

TEST_F(UnknownOrderTest, TheQuestionLeadsToTheSearchToo)
{
    openWithEntry();
    lose();
    alert()->cancel();
    submitEntry();
    EXPECT_EQ(said(), "确认再次提交");
    alert()->rightBtnClick();
    EXPECT_EQ(said(), "委托结果未知");
    // Two requests: the search that was closed died with its dialog.
    settle();
    answerEntrusts({entrust("4")});
    EXPECT_EQ(said(), "已找到这笔委托");
    alert()->cancel();
    enter("12.34", "800");
    submitEntry();
    EXPECT_EQ(http.countOf(buyPath), 2);
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
    stack().pop();
    settle();
    EXPECT_TRUE(asks());
    runLoop.advance(24h);
    http.answerRaw(lost, HttpFailure::TimedOut);
    EXPECT_EQ(alert(), nullptr);
    EXPECT_TRUE(asks());

    const QVariant user = settings.value(SettingsKeys::user);
    settings.setValue(SettingsKeys::user, QVariantMap{{"api_token", "other"}, {"cell", "13900139000"}});
    EXPECT_FALSE(asks());
    settings.setValue(SettingsKeys::user, user);
    openWithEntry();
    lose();
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

TEST_F(UnknownOrderTest, AnAnswerThatComesAfterItsScreenIsGoneIsHeard)
{
    openWithEntry();
    submitEntry();
    stack().pop();
    settle();
    http.answer(buyPath, succeeded(QVariantMap{{"id", "1"}}));
    openWithEntry();
    submitEntry();
    EXPECT_EQ(http.countOf(buyPath), 2);
}

TEST_F(UnknownOrderTest, TheFindingIsSaidWhenTheScreenIsGoneAndNotToAnotherUser)
{
    openWithEntry();
    lose();
    stack().pop();
    settle();
    answerEntrusts({entrust("4")});
    EXPECT_EQ(said(), "已找到这笔委托");
    EXPECT_EQ(alert()->leftTitle(), "");
    alert()->rightBtnClick();

    openWithEntry();
    submitEntry();
    settings.setValue(SettingsKeys::user, QVariantMap{{"api_token", "other"}, {"cell", "13900139000"}});
    http.fail(buyPath, HttpFailure::TimedOut);
    EXPECT_EQ(alert(), nullptr);
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
