#pragma once

#include "core/net/Callbacks.h"
#include "trading/api/TZStockInfoModel.h"

/// The local table of all listed stocks ("stock.sqlite" in the documents directory) and its refresh from the
/// service. Main thread only; opened on first use and kept until `close`. Nothing here ever waits for a lock:
/// what meets one finds nothing, or is tried again later.
class TZStockInfoTool {
public:
    TZStockInfoTool() = delete;

    /// Posted on the main thread when `saveStockInfo` is through, whether or not it succeeded.
    static inline const QString stockTableReplaced = QStringLiteral("stockTableReplaced");

    /// Asks for a newer list; `param` is ignored. Shows no indicator. Kept on purpose: "success" true means
    /// that there is no newer list and calls `success`; "success" false brings one, which is saved without
    /// calling `success`. The operation's `finished` comes in every case, `isSaving` then tells whether rows
    /// are being inserted.
    static Operation getStockInfoWithParam(const QVariantMap &param, Success success, Failure andError);

    /// Replaces the whole table: empties it at once, then inserts the rows in order in one transaction on
    /// another thread. A row with a null field fails, and leaves the table empty.
    static void saveStockInfo(const QList<TZStockInfoModel> &stocks);
    static bool isSaving();

    /// Stocks whose code, name or initials contain `condition` (as SQL's LIKE: ASCII letters in either case,
    /// "%" and "_" stand for any), in the table's order; all of them for "". Kept on purpose: the text
    /// becomes part of the statement, so that a quote breaks it and nothing is found.
    static QList<TZStockInfoModel> queryWithCondition(const QString &condition);
    static bool isTableEmpty();

    /// Empty while the table can be used; otherwise one line that says what is wrong with its file and what
    /// to do.
    static QString tableProblem();

    /// Waits for rows being inserted and closes the file; the next use opens it again.
    static void close();
};
