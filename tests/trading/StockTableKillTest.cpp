#include "trading/api/StockTable.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>
#include <random>
#include <set>

TEST(StockTableKillTest, KilledAtAnyMomentTheTableIsWholeOrEmpty)
{
    constexpr int rounds = 48;
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("stock.sqlite"));
    std::mt19937 random(20240607);
    std::uniform_int_distribution<unsigned long> microseconds(0, 60000);
    int whole = 0;
    int empty = 0;
    for (int round = 0; round < rounds; ++round) {
        QProcess victim;
        victim.start(QStringLiteral(REFRESH_FOR_EVER), {file});
        ASSERT_TRUE(victim.waitForReadyRead(20000));
        QThread::usleep(microseconds(random));
        victim.kill();
        ASSERT_TRUE(victim.waitForFinished(20000));
        ASSERT_EQ(victim.exitStatus(), QProcess::CrashExit) << "it was killed at its work";

        StockTable table(file, [](bool) {});
        ASSERT_EQ(table.problem(), QString());
        const QList<TZStockInfoModel> stocks = table.query({});
        std::set<QString> lists;
        std::set<QString> codes;
        for (const TZStockInfoModel &stock : stocks) {
            lists.insert(stock.n);
            codes.insert(stock.c);
        }
        ASSERT_TRUE(stocks.isEmpty() || (stocks.size() == 6000 && lists.size() == 1 && codes.size() == 6000))
            << stocks.size() << " rows of " << lists.size() << " lists";
        ++(stocks.isEmpty() ? empty : whole);
    }
    EXPECT_GT(whole, 0) << "no kill came between two refreshes";
    EXPECT_GT(empty, 0) << "no kill came inside a refresh";
}
