#pragma once

#include "tests/support/TestPlatform.h"
#include "trading/api/TZStockInfoTool.h"

#include <QDir>
#include <QElapsedTimer>

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

    static QStringList codesOf(const QList<TZStockInfoModel> &stocks)
    {
        QStringList codes;
        for (const TZStockInfoModel &stock : stocks)
            codes.append(stock.c);
        return codes;
    }
};
