#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace sandbox {

/** A statement that SQLite refused. what() names the statement's fault, never the bound values. */
class StoreError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/**
 * One prepared statement. Bind the parameters in order, then step through the rows:
 *
 *     Statement find(database, "SELECT cash FROM account WHERE user_id = ?");
 *     find.bind(userId);
 *     while (find.step()) use(find.integer(0));
 *
 * It must not outlive its Database. Throws StoreError.
 */
class Statement {
public:
    Statement(class Database &database, std::string_view sql);

    /** Binds all parameters from the first on: integers, text, or nullptr for NULL. */
    template <typename... Values> Statement &bind(const Values &...values)
    {
        int index = 0;
        (bindOne(++index, values), ...);
        return *this;
    }

    /** True while there is a row to read. */
    bool step();
    /** Runs a statement that answers no rows, and makes it ready to be bound again. */
    void run();
    /** Makes the statement ready to be bound and stepped again. */
    void reset();

    /** Columns count from 0; a NULL reads as 0 or "". */
    std::int64_t integer(int column) const;
    std::string text(int column) const;
    bool isNull(int column) const;

private:
    void bindOne(int index, std::integral auto value)
    {
        bindInteger(index, static_cast<std::int64_t>(value));
    }
    void bindOne(int index, std::string_view value) { bindText(index, value); }
    void bindOne(int index, std::nullptr_t) { bindNull(index); }
    void bindInteger(int index, std::int64_t value);
    void bindText(int index, std::string_view value);
    void bindNull(int index);

    struct Finalize {
        void operator()(sqlite3_stmt *statement) const;
    };
    Database &m_database;
    std::unique_ptr<sqlite3_stmt, Finalize> m_statement;
};

/**
 * One connection to one SQLite file in WAL mode: what was committed survives the death of the process at
 * any moment. ":memory:" gives a database that ends with the object. A connection is for one thread at a
 * time; several connections to one file may live side by side, and a writer waits up to 5 seconds for
 * another. Throws StoreError.
 */
class Database {
public:
    explicit Database(const std::string &path);

    /** Throws when the file's structure is damaged anywhere. */
    void check();
    /** Runs one or more statements without parameters. */
    void execute(std::string_view sql);
    /** The row identifier of the last insert. */
    std::int64_t lastInsertId() const;
    /** Rows changed by the last statement. */
    std::int64_t changes() const;
    /** True inside a Transaction. */
    bool inTransaction() const;

private:
    friend class Statement;
    struct Close {
        void operator()(sqlite3 *handle) const;
    };
    [[noreturn]] void fail(std::string_view doing) const;
    std::unique_ptr<sqlite3, Close> m_handle;
};

/** A write transaction: everything since its construction is undone unless commit() was reached. */
class Transaction {
public:
    explicit Transaction(Database &database);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    void commit();

private:
    Database &m_database;
    bool m_open = true;
};

} // namespace sandbox
