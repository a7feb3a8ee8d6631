#include "trading/api/StockTable.h"

#include <QFileInfo>

namespace {
const QByteArray createTable = QByteArrayLiteral(
    "CREATE TABLE IF NOT EXISTS t_stock (c TEXT NOT NULL, n TEXT NOT NULL, s TEXT NOT NULL)");
const QByteArray deleteAll = QByteArrayLiteral("DELETE FROM t_stock");
const QByteArray insertOne = QByteArrayLiteral("INSERT INTO t_stock (c, n, s) VALUES (?, ?, ?)");
const QByteArray selectOne = QByteArrayLiteral("SELECT c, n, s FROM t_stock LIMIT 1");

// The calling thread never waits; the queue waits for another process that writes.
constexpr int noWait = 0;
constexpr int queueWait = 5000;
constexpr std::chrono::milliseconds retryInterval{200};

QString describeFault(const QString &file, const QString &fault)
{
    const QString remedy =
        QFileInfo::exists(file) ? QStringLiteral("move it away") : QStringLiteral("make its folder writable");
    return QStringLiteral("%1 is no usable stock table (%2): stock search stays empty; %3 and start again")
        .arg(file, fault, remedy);
}

bool insertAll(Database &database, const QList<TZStockInfoModel> &stocks)
{
    Transaction transaction(database);
    if (!transaction.isOpen())
        return false;
    Statement insert(database, insertOne);
    if (!insert.isValid())
        return false;
    for (const TZStockInfoModel &stock : stocks) {
        insert.bind(1, stock.c);
        insert.bind(2, stock.n);
        insert.bind(3, stock.s);
        if (insert.run() != SqlResult::Done)
            return false;
    }
    return transaction.commit();
}
} // namespace

StockTable::StockTable(const QString &file, Replaced replaced)
    : plain(file, noWait), queued(file, queueWait), whenReplaced(std::move(replaced))
{
    queue.setMaxThreadCount(1);
    open(file);
}

StockTable::~StockTable()
{
    queue.waitForDone();
}

void StockTable::open(const QString &file)
{
    for (Database *const database : {&plain, &queued}) {
        database->execute("PRAGMA journal_mode = WAL");
        database->execute("PRAGMA synchronous = NORMAL");
    }
    // Moving the log into the file takes disk writes that are waited for: the queue's work.
    plain.execute("PRAGMA wal_autocheckpoint = 0");
    if (plain.execute(createTable) == SqlResult::Failed || plain.execute(selectOne) == SqlResult::Failed)
        fault = describeFault(file, plain.fault());
}

bool StockTable::isEmpty()
{
    Statement select(plain, selectOne);
    return !select.isValid() || select.step() != SqlResult::Row;
}

void StockTable::replace(QList<TZStockInfoModel> stocks)
{
    if (!fault.isEmpty())
        return;
    next = std::move(stocks);
    if (!inserting)
        startReplacing();
}

void StockTable::startReplacing()
{
    const SqlResult emptied = plain.execute(deleteAll);
    if (emptied == SqlResult::Busy) {
        retry.startOnce(retryInterval, [this] { startReplacing(); });
        return;
    }
    const QList<TZStockInfoModel> stocks = *std::exchange(next, std::nullopt);
    inserting = true;
    queue.start([this, stocks, emptied] {
        const bool succeeded = emptied == SqlResult::Done && insertAll(queued, stocks);
        QMetaObject::invokeMethod(
            &context, [this, succeeded] { inserted(succeeded); }, Qt::QueuedConnection);
    });
}

void StockTable::inserted(bool succeeded)
{
    inserting = false;
    if (next)
        startReplacing();
    else
        whenReplaced(succeeded);
}

QList<TZStockInfoModel> StockTable::query(const QString &condition)
{
    const QString statement = QStringLiteral("SELECT * FROM t_stock WHERE c like '%") + condition +
                              QStringLiteral("%' OR n like '%") + condition +
                              QStringLiteral("%' OR s like '%") + condition + QStringLiteral("%';");
    QList<TZStockInfoModel> stocks;
    Statement select(plain, statement.toUtf8());
    if (!select.isValid())
        return stocks;
    const int c = select.column("c");
    const int n = select.column("n");
    const int s = select.column("s");
    while (select.step() == SqlResult::Row)
        stocks.append({select.text(c), select.text(n), select.text(s)});
    return stocks;
}
