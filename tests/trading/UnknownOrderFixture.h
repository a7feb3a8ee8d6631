#pragma once

#include "tests/trading/OrderEntryFixture.h"
#include "trading/screens/UnknownOrders.h"

inline const QString entrustsPath = "entrustsToday";

/// Milliseconds on the service's clock, which is not the device's.
inline qint64 seconds(int count)
{
    return 1'600'000'000'000 + count * 1000;
}

inline QVariantMap entrust(const QString &id, int createdAt = 0)
{
    return {{"id", id},      {"entrustNo", "1000" + id}, {"stockCode", "600001"},
            {"type", "1"},   {"entrustPrice", "12.340"}, {"entrustShares", "800"},
            {"status", "2"}, {"errorMsg", ""},           {"createdAt", QString::number(seconds(createdAt))}};
}

inline QVariantMap with(QVariantMap map, const QString &key, const QVariant &value)
{
    map.insert(key, value);
    return map;
}

/// A purchase of 800 at 12.34, and what becomes of it.
class UnknownOrderTest : public OrderEntryTest {
protected:
    UnknownOrderTest()
    {
        reachability.change(NetworkStatus::ReachableViaWiFi);
        settings.setValue(SettingsKeys::networkStatus, true);
    }

    /// With the service's time in the first quote.
    void openWithEntry()
    {
        OrderEntryTest::openWithEntry();
        quoteAt(0);
    }
    /// Sends the order of the entry; no answer comes back.
    void lose(const HttpOutcome &outcome = HttpFailure::TimedOut)
    {
        submitEntry();
        http.answerRaw(http.pending(buyPath), outcome);
    }
    void openAndLose()
    {
        openWithEntry();
        lose();
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
        // As long as a dialog takes no tap after news.
        runLoop.advance(500ms);
    }
    void leave()
    {
        stack().pop();
        settle();
    }
    void findNothing(const QVariantList &entrusts = {})
    {
        answerEntrusts(entrusts);
        runLoop.advance(3s);
        answerEntrusts(entrusts);
        EXPECT_EQ(said() + alert()->rightTitle(), "未找到这笔委托查询委托")
            << "the safe step is the bold one";
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
