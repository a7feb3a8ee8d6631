#include "trading/api/StockTable.h"

#include <QEventLoop>
#include <QTemporaryDir>
#include <array>
#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <string>
#include <vector>

namespace {
constexpr int stockCount = 6000;

QList<TZStockInfoModel> makeStocks()
{
    const QString names = QStringLiteral("东西南北华海天金银星钢铁医药科技传媒电力");
    const QString letters = QStringLiteral("DXNBHHTJYXGTYYKJCMDL");
    QList<TZStockInfoModel> stocks;
    stocks.reserve(stockCount);
    for (int i = 0; i < stockCount; ++i) {
        const std::array<int, 4> syllables{i % 10, i / 10 % 10, 10 + i / 100 % 10, 10 + i / 7 % 10};
        TZStockInfoModel stock{QString::number(i % 3 == 0   ? 600000 + i
                                               : i % 3 == 1 ? i + 1
                                                            : 300000 + i),
                               {},
                               {}};
        stock.c = stock.c.rightJustified(6, u'0');
        for (const int syllable : syllables) {
            stock.n += names.at(syllable);
            stock.s += letters.at(syllable);
        }
        stocks.append(stock);
    }
    return stocks;
}

/// The same rows as the bytes that the floor binds.
std::vector<std::array<std::string, 3>> bytesOf(const QList<TZStockInfoModel> &stocks)
{
    std::vector<std::array<std::string, 3>> rows;
    for (const TZStockInfoModel &stock : stocks)
        rows.push_back({stock.c.toStdString(), stock.n.toStdString(), stock.s.toStdString()});
    return rows;
}

/// The table as the client keeps it, filled, and a way to replace it that ends when the last row is in.
class FilledTable {
public:
    FilledTable() { replace(); }

    void replace()
    {
        table.replace(stocks);
        loop.exec();
    }

    QTemporaryDir directory;
    QString file = directory.filePath(QStringLiteral("stock.sqlite"));
    QList<TZStockInfoModel> stocks = makeStocks();
    QEventLoop loop;
    StockTable table{file, [this](bool) { loop.quit(); }};
};

void execute(sqlite3 *handle, const char *sql)
{
    if (sqlite3_exec(handle, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("%s: %s", sql, sqlite3_errmsg(handle));
}

sqlite3 *openAsTheClientDoes(const QString &file)
{
    sqlite3 *handle = nullptr;
    sqlite3_open(file.toUtf8().constData(), &handle);
    execute(handle, "PRAGMA journal_mode = WAL");
    execute(handle, "PRAGMA synchronous = NORMAL");
    return handle;
}

void refreshFloor(benchmark::State &state)
{
    const QTemporaryDir directory;
    const auto rows = bytesOf(makeStocks());
    sqlite3 *const handle = openAsTheClientDoes(directory.filePath(QStringLiteral("stock.sqlite")));
    execute(handle, "CREATE TABLE IF NOT EXISTS t_stock (c TEXT NOT NULL, n TEXT NOT NULL, s TEXT NOT NULL)");
    for ([[maybe_unused]] const auto &iteration : state) {
        execute(handle, "DELETE FROM t_stock");
        execute(handle, "BEGIN IMMEDIATE");
        sqlite3_stmt *insert = nullptr;
        sqlite3_prepare_v2(handle, "INSERT INTO t_stock (c, n, s) VALUES (?, ?, ?)", -1, &insert, nullptr);
        for (const auto &row : rows) {
            for (int column = 0; column < 3; ++column) {
                const std::string &text = row[static_cast<size_t>(column)];
                sqlite3_bind_text(insert, column + 1, text.data(), static_cast<int>(text.size()),
                                  SQLITE_STATIC);
            }
            sqlite3_step(insert);
            sqlite3_reset(insert);
        }
        sqlite3_finalize(insert);
        execute(handle, "COMMIT");
    }
    sqlite3_close(handle);
}

void refreshOurs(benchmark::State &state)
{
    FilledTable filled;
    for ([[maybe_unused]] const auto &iteration : state)
        filled.replace();
}

const std::array<QString, 3> conditions{QStringLiteral("hhgt"), QStringLiteral("6003"), QStringLiteral("60")};

void searchFloor(benchmark::State &state)
{
    const FilledTable filled;
    sqlite3 *const handle = openAsTheClientDoes(filled.file);
    const std::string text = conditions[static_cast<size_t>(state.range(0))].toStdString();
    const std::string sql = "SELECT * FROM t_stock WHERE c like '%" + text + "%' OR n like '%" + text +
                            "%' OR s like '%" + text + "%';";
    int found = 0;
    for ([[maybe_unused]] const auto &iteration : state) {
        sqlite3_stmt *select = nullptr;
        sqlite3_prepare_v2(handle, sql.c_str(), -1, &select, nullptr);
        for (found = 0; sqlite3_step(select) == SQLITE_ROW; ++found) {
            for (int column = 0; column < 3; ++column)
                benchmark::DoNotOptimize(sqlite3_column_text(select, column));
        }
        sqlite3_finalize(select);
    }
    state.counters["rows"] = found;
    sqlite3_close(handle);
}

void searchOurs(benchmark::State &state)
{
    FilledTable filled;
    const QString &condition = conditions[static_cast<size_t>(state.range(0))];
    qsizetype found = 0;
    for ([[maybe_unused]] const auto &iteration : state)
        found = filled.table.query(condition).size();
    state.counters["rows"] = static_cast<double>(found);
}
} // namespace

BENCHMARK(refreshFloor)->Name("stock_list_refresh/floor")->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(refreshOurs)->Name("stock_list_refresh/ours")->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(searchFloor)->Name("stock_search/floor")->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);
BENCHMARK(searchOurs)->Name("stock_search/ours")->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);
