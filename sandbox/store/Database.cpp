#include "store/Database.h"

#include <sqlite3.h>

namespace sandbox {

Statement::Statement(Database &database, std::string_view sql) : m_database(database)
{
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(database.m_handle.get(), sql.data(), static_cast<int>(sql.size()), &statement,
                           nullptr) != SQLITE_OK)
        database.fail(sql);
    m_statement.reset(statement);
}

bool Statement::step()
{
    const int result = sqlite3_step(m_statement.get());
    if (result == SQLITE_ROW)
        return true;
    if (result != SQLITE_DONE)
        m_database.fail(sqlite3_sql(m_statement.get()));
    return false;
}

void Statement::run()
{
    step();
    reset();
}

void Statement::reset()
{
    sqlite3_reset(m_statement.get());
}

std::int64_t Statement::integer(int column) const
{
    return sqlite3_column_int64(m_statement.get(), column);
}

std::string Statement::text(int column) const
{
    const auto *bytes = sqlite3_column_text(m_statement.get(), column);
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(m_statement.get(), column));
    return bytes ? std::string(reinterpret_cast<const char *>(bytes), size) : std::string();
}

bool Statement::isNull(int column) const
{
    return sqlite3_column_type(m_statement.get(), column) == SQLITE_NULL;
}

void Statement::bindInteger(int index, std::int64_t value)
{
    if (sqlite3_bind_int64(m_statement.get(), index, value) != SQLITE_OK)
        m_database.fail(sqlite3_sql(m_statement.get()));
}

void Statement::bindText(int index, std::string_view value)
{
    if (sqlite3_bind_text(m_statement.get(), index, value.data(), static_cast<int>(value.size()),
                          SQLITE_TRANSIENT) != SQLITE_OK)
        m_database.fail(sqlite3_sql(m_statement.get()));
}

void Statement::bindNull(int index)
{
    if (sqlite3_bind_null(m_statement.get(), index) != SQLITE_OK)
        m_database.fail(sqlite3_sql(m_statement.get()));
}

void Statement::Finalize::operator()(sqlite3_stmt *statement) const
{
    sqlite3_finalize(statement);
}

Database::Database(const std::string &path)
{
    sqlite3 *handle = nullptr;
    const int result =
        sqlite3_open_v2(path.c_str(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    m_handle.reset(handle);
    if (result != SQLITE_OK)
        fail("opening " + path);
    sqlite3_busy_timeout(handle, 5000);
    execute("PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL; PRAGMA foreign_keys = ON;");
}

void Database::check()
{
    Statement findings(*this, "PRAGMA quick_check(1)");
    if (!findings.step() || findings.text(0) != "ok")
        throw StoreError("the database is damaged");
}

void Database::execute(std::string_view sql)
{
    if (sqlite3_exec(m_handle.get(), std::string(sql).c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        fail("a script");
}

std::int64_t Database::lastInsertId() const
{
    return sqlite3_last_insert_rowid(m_handle.get());
}

std::int64_t Database::changes() const
{
    return sqlite3_changes64(m_handle.get());
}

bool Database::inTransaction() const
{
    return sqlite3_get_autocommit(m_handle.get()) == 0;
}

void Database::fail(std::string_view doing) const
{
    const char *reason = m_handle ? sqlite3_errmsg(m_handle.get()) : "out of memory";
    throw StoreError(std::string(reason) + " (" + std::string(doing) + ")");
}

void Database::Close::operator()(sqlite3 *handle) const
{
    sqlite3_close_v2(handle);
}

Transaction::Transaction(Database &database) : m_database(database)
{
    m_database.execute("BEGIN IMMEDIATE");
}

Transaction::~Transaction()
{
    if (!m_open)
        return;
    try {
        m_database.execute("ROLLBACK");
    } catch (const StoreError &) {
        // SQLite has rolled back by itself after the error that brought us here.
    }
}

void Transaction::commit()
{
    m_database.execute("COMMIT");
    m_open = false;
}

} // namespace sandbox
