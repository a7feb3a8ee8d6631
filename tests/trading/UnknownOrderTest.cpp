#include "core/util/Service.h"
#include "tests/trading/OrderEntryFixture.h"
#include "trading/api/TZTradeTool.h"
#include "trading/screens/UnknownOrders.h"

namespace {
const QString entrustsPath = QStringLiteral("entrustsToday");

QVariantMap entrust(const QString &id, const QString &createdAt = QStringLiteral("1000"))
{
    return {{"id", id},      {"entrustNo", "1000" + id}, {"stockCode", "600001"},
            {"type", "1"},   {"entrustPrice", "12.340"}, {"entrustShares", "800"},
            {"status", "2"}, {"errorMsg", ""},           {"createdAt", createdAt}};
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
    /// The service tells its time with every quote.
    void quoteAt(qint64 time)
    {
        QVariantMap answer = quote("12.30");
        answer["data"] = with(answer["data"].toMap(), "time", QString::number(time));
        http.answer(quotePath, answer);
    }
    void answerEntrusts(const QVariantList &entrusts) { http.answer(entrustsPath, succeeded(entrusts)); }
    void findNothing()
    {
        answerEntrusts({});
        runLoop.advance(3s);
        answerEntrusts({});
    }
    QString said() { return alert() ? alert()->titleText() : QString(); }
};

TEST_F(UnknownOrderTest, IsSaidAndLookedForAndFoundWithItsStatus)
{
    openWithEntry();
    lose();
    EXPECT_EQ(lastBanner(), "加载失败");
    EXPECT_EQ(said(), "委托结果未知");
    EXPECT_TRUE(alert()->ensureText().contains("买入 海天传媒(600001)\n12.34元 × 800股"));
    EXPECT_EQ(http.last().path(), entrustsPath);
    EXPECT_EQ(http.last().fields(), QVariantMap());

    answerEntrusts({with(entrust("8"), "stockCode", "600002"), with(entrust("7"), "type", "2"),
                    with(entrust("6"), "entrustPrice", "12.35"), with(entrust("5"), "entrustShares", "900"),
                    entrust("4")});
    EXPECT_EQ(said(), "已找到这笔委托");
    EXPECT_TRUE(alert()->ensureText().contains("委托编号 10004，状态：委托中"));
    EXPECT_EQ(screen->price() + screen->quantity(), "");
    EXPECT_EQ(alert()->rightTitle(), "继续买入");
    alert()->rightBtnClick();
    EXPECT_NE(top<TZSelectStockController>(), nullptr);
    EXPECT_EQ(http.countOf(buyPath), 1);
}

TEST_F(UnknownOrderTest, OnlyAnOutcomeThatProvesNothingIsUnknown)
{
    const HttpResponse garbled{200, "application/json", "{"};
    const HttpResponse unwell{502, "text/html", "<html>"};
    for (const HttpOutcome &outcome : QList<HttpOutcome>{HttpFailure::TimedOut, HttpFailure::Connection,
                                                         HttpFailure::Cancelled, garbled, unwell}) {
        openWithEntry();
        lose(outcome);
        EXPECT_EQ(said(), "委托结果未知");
        answerEntrusts({entrust(QString::number(http.count()))});
        alert()->leftBtnClick();
        settle();
    }
    const HttpResponse wrong{400, "application/json", "{}"};
    openWithEntry();
    for (const HttpOutcome &outcome : QList<HttpOutcome>{HttpFailure::Offline, HttpFailure::Tls, wrong}) {
        lose(outcome);
        EXPECT_EQ(said(), "");
        EXPECT_EQ(lastBanner(), "加载失败");
    }
    EXPECT_EQ(http.countOf(buyPath), 8);
}

TEST_F(UnknownOrderTest, IsLookedForAgainBeforeItIsSaidNotToBeThere)
{
    openWithEntry();
    lose();
    answerEntrusts({with(entrust("3"), "entrustShares", "100")});
    EXPECT_EQ(http.pending(entrustsPath).fields(), (QVariantMap{{"page", "1"}}));
    answerEntrusts({});
    EXPECT_EQ(said(), "委托结果未知");
    runLoop.advance(2999ms);
    EXPECT_FALSE(http.hasPending(entrustsPath));
    runLoop.advance(1ms);
    answerEntrusts({entrust("4"), with(entrust("3"), "entrustShares", "100")});
    EXPECT_EQ(said(), "已找到这笔委托");
    alert()->cancel();

    enter("12.34", "800");
    lose();
    // A service without pages repeats itself.
    for (int look = 0; look < 2; ++look) {
        answerEntrusts({entrust("4")});
        answerEntrusts({entrust("4")});
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
    const auto other = [](const QString &id, const QString &time) {
        return with(entrust(id, time), "stockCode", "000002");
    };
    answerEntrusts({other("9", "1300"), other("8", "1200")});
    answerEntrusts({entrust("7", "1100"), other("6", "900")});
    EXPECT_EQ(said(), "已找到这笔委托");
    alert()->cancel();

    enter("12.34", "800");
    lose();
    answerEntrusts({other("9", "1300"), entrust("7", "1100"), other("6", "900")});
    EXPECT_FALSE(http.hasPending(entrustsPath)) << "everything further is older than the order";
    runLoop.advance(3s);
    answerEntrusts({other("9", "1300"), entrust("7", "1100"), other("6", "900")});
    EXPECT_EQ(said(), "未找到这笔委托");
}

TEST_F(UnknownOrderTest, AnOrderOfTheSameKindThatStoodBeforeIsNotTakenForIt)
{
    // One that was answered, one that was found, one in the list of today that was read, one older by time.
    openWithEntry();
    submitEntry();
    http.answer(buyPath, succeeded(QVariantMap{{"id", 1}}));
    alert()->cancel();
    enter("12.34", "800");
    lose();
    answerEntrusts({entrust("2"), entrust("1")});
    EXPECT_EQ(said(), "已找到这笔委托");
    alert()->cancel();
    TZTradeTool::getEntrustsTodayWithParam({}, {}, {});
    answerEntrusts({entrust("3"), entrust("2"), entrust("1")});
    quoteAt(2000);
    enter("12.34", "800");
    lose();
    const QVariantList before{entrust("3", "2000"), entrust("4", "1999"), entrust("2"), entrust("1")};
    answerEntrusts(before);
    runLoop.advance(3s);
    answerEntrusts(before);
    EXPECT_EQ(said(), "未找到这笔委托");

    alert()->leftBtnClick();
    answerEntrusts(QVariantList{entrust("5", "2000")} + before);
    EXPECT_EQ(said(), "已找到这笔委托");
    EXPECT_TRUE(alert()->ensureText().contains("10005"));
}

TEST_F(UnknownOrderTest, EntrustsThatCannotBeReadAreSaidAndReadAgainOnDemand)
{
    openWithEntry();
    lose();
    http.fail(entrustsPath, HttpFailure::TimedOut);
    EXPECT_TRUE(alert()->ensureText().contains("没有读到今日委托"));
    alert()->leftBtnClick();
    http.answer(entrustsPath, refused("系统繁忙"));
    EXPECT_TRUE(alert()->ensureText().contains("没有读到今日委托"));

    // Without a network the stored copy is no proof, even when such an order is in it.
    settings.setValue(TZTradeTool::entrustsTodayKey, succeeded(QVariantList{entrust("4")}));
    settings.setValue(SettingsKeys::networkStatus, false);
    alert()->leftBtnClick();
    EXPECT_TRUE(alert()->ensureText().contains("没有读到今日委托"));
    settings.setValue(SettingsKeys::networkStatus, true);
    alert()->leftBtnClick();
    answerEntrusts({entrust("5")});
    EXPECT_EQ(said(), "已找到这笔委托");
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

    submitEntry();
    alert()->leftBtnClick();
    runLoop.advance(500ms);
    EXPECT_EQ(http.countOf(buyPath), 3);
    http.answer(buyPath, refused("资金不足"));
    submitEntry();
    EXPECT_EQ(said(), "确认再次提交") << "a refusal says nothing of the first one";
    alert()->leftBtnClick();
    runLoop.advance(500ms);
    http.answer(buyPath, succeeded(QVariantMap{{"id", "5"}}));
    EXPECT_EQ(said(), "委托挂单成功");
    alert()->cancel();
    enter("12.34", "800");
    submitEntry();
    EXPECT_EQ(http.countOf(buyPath), 5) << "and no question once it stands in the books";
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
    runLoop.advance(24h);
    EXPECT_FALSE(asks());

    openWithEntry();
    lose();
    alert()->cancel();
    stack().pop();
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
