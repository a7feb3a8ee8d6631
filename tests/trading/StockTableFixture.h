#pragma once

#include "tests/support/TestPlatform.h"
#include "trading/api/TZStockInfoTool.h"

#include <QElapsedTimer>

inline const TZStockInfoModel steel{"600123", "东方钢铁", "DFGT"};
inline const TZStockInfoModel medicine{"000600", "南海医药", "NHYY"};

inline QVariantMap listed(const QVariant &c, const QVariant &n, const QVariant &s)
{
    return {{"c", c}, {"n", n}, {"s", s}};
}

inline QVariantMap newList(const QVariant &data, const QString &version = "7")
{
    return {{"success", false}, {"code", version}, {"data", data}};
}

/// The stock's list as the service brings it.
inline QVariantMap newList(const TZStockInfoModel &stock)
{
    return newList(QVariantList{listed(stock.c, stock.n, stock.s)});
}

/// A test with a stock table of its own.
class StockTableTest : public PlatformTest {
protected:
    ~StockTableTest() override { TZStockInfoTool::close(); }

    static void waitUntilSaved()
    {
        QElapsedTimer clock;
        clock.start();
        while (TZStockInfoTool::isSaving() && clock.elapsed() < 20000)
            settle();
        ASSERT_FALSE(TZStockInfoTool::isSaving());
    }

    static void save(const QList<TZStockInfoModel> &stocks)
    {
        TZStockInfoTool::saveStockInfo(stocks);
        waitUntilSaved();
    }
    static QList<TZStockInfoModel> many(int count, const QString &prefix)
    {
        QList<TZStockInfoModel> stocks;
        for (int i = 0; i < count; ++i)
            stocks.append({prefix + QString::number(i).rightJustified(3, u'0'), "某某股份", "MMGF"});
        return stocks;
    }
    static QStringList codesFoundBy(const QString &condition)
    {
        QStringList codes;
        for (const TZStockInfoModel &stock : TZStockInfoTool::queryWithCondition(condition))
            codes.append(stock.c);
        return codes;
    }
    static QStringList codes() { return codesFoundBy({}); }

    /// Asks for the list of stocks and answers.
    void fetch(const QVariantMap &answer)
    {
        TZStockInfoTool::getStockInfoWithParam({}, {}, {});
        http.answer("info", answer);
        waitUntilSaved();
    }
};
