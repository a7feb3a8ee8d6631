#include "trading/api/StockTable.h"

#include <QCoreApplication>
#include <cstdio>

// Replaces the stock table in the file given, over and over, until it is killed. Every list bears its number
// as its name.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QString file = QString::fromLocal8Bit(argv[1]);
    int number = 0;
    std::unique_ptr<StockTable> table;
    const auto replace = [&] {
        QList<TZStockInfoModel> stocks;
        const QString name = QString::number(++number);
        for (int code = 0; code < 6000; ++code)
            stocks.append(
                {QStringLiteral("%1").arg(code, 6, 10, QLatin1Char('0')), name, QStringLiteral("ABCD")});
        table->replace(stocks);
        std::puts("replacing");
        std::fflush(stdout);
    };
    table = std::make_unique<StockTable>(file, [&replace](bool) { replace(); });
    replace();
    return QCoreApplication::exec();
}
