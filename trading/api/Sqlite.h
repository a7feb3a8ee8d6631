#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

/// SQLite's own result codes are told apart only as far as anybody acts on them.
enum class SqlResult { Done, Row, Busy, Failed };

/// One connection, used by one thread at a time. A lock held by another connection is waited for as long as
/// `lockWait` says, then the statement answers `Busy`.
class Database {
public:
    Database() = default;
    /// Opens or makes the file. What is wrong with its contents shows with the first statement.
    Database(const QString &file, int lockWaitMilliseconds);

    bool isOpen() const { return handle != nullptr; }
    /// Runs one statement without parameters to its end.
    SqlResult execute(const QByteArray &sql);
    /// The last statement's fault in SQLite's words.
    QString fault() const;

private:
    friend class Statement;
    struct Close {
        void operator()(sqlite3 *connection) const;
    };
    std::unique_ptr<sqlite3, Close> handle;
};

/// One prepared statement of a database that outlives it.
class Statement {
public:
    /// Takes exactly one statement: where another one, or anything else, follows, `isValid` is false.
    Statement(Database &database, const QByteArray &sql);

    bool isValid() const { return handle != nullptr; }
    /// Parameters count from 1; a null text binds NULL.
    void bind(int parameter, const QString &text);
    SqlResult step();
    /// Steps once and makes the statement ready to be bound again.
    SqlResult run();

    /// Columns count from 0.
    QString text(int column) const;
    /// The number of the column of that name, -1 when there is none.
    int column(const char *name) const;

private:
    struct Finalize {
        void operator()(sqlite3_stmt *statement) const;
    };
    std::unique_ptr<sqlite3_stmt, Finalize> handle;
    /// The bytes of the bound texts, one buffer a parameter, used again for each row.
    std::vector<QByteArray> bound;
};

/// Everything since its construction is undone unless `commit` succeeded.
class Transaction {
public:
    explicit Transaction(Database &database);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    /// False when another connection kept the database locked.
    bool isOpen() const { return open; }
    bool commit();

private:
    Database &database;
    bool open = false;
};
