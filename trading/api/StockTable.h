#pragma once

#include "core/platform/Timer.h"
#include "trading/api/Sqlite.h"
#include "trading/api/TZStockInfoModel.h"

#include <QThreadPool>
#include <functional>
#include <optional>

/// The table of all listed stocks in its file: one plain connection for the calling (main) thread, and one
/// that belongs to a queue of a single thread, where rows are inserted. The file keeps a write-ahead log:
/// searches go on while rows are inserted and see them all at once; killed at any moment, the table is whole
/// or empty.
class StockTable {
public:
    /// Hears whether the table now is the list that came last.
    using Replaced = std::function<void(bool succeeded)>;
    /// `replaced` runs on the calling thread's event loop after each replacement.
    StockTable(const QString &file, Replaced replaced);
    /// Waits for the rows being inserted.
    ~StockTable();

    /// Empty while the table can be used.
    QString problem() const { return fault; }
    bool isEmpty();
    /// Empties the table now and inserts `stocks` on the queue. While that goes on, a further list waits for
    /// it, and of several that wait the last one counts.
    void replace(QList<TZStockInfoModel> stocks);
    bool isReplacing() const { return inserting || next; }
    QList<TZStockInfoModel> query(const QString &condition);

private:
    void open(const QString &file);
    void startReplacing();
    void inserted(bool succeeded);

    Database plain;
    Database queued;
    QString fault;
    Replaced whenReplaced;
    std::optional<QList<TZStockInfoModel>> next;
    bool inserting = false;
    Timer retry;
    /// Calls back on the calling thread until the table is gone.
    QObject context;
    QThreadPool queue;
};
