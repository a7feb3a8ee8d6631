#include "trading/api/Sqlite.h"

#include <QStringEncoder>
#include <sqlite3.h>

namespace {
SqlResult resultOf(int code)
{
    switch (code & 0xff) {
    case SQLITE_OK:
    case SQLITE_DONE:
        return SqlResult::Done;
    case SQLITE_ROW:
        return SqlResult::Row;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return SqlResult::Busy;
    default:
        return SqlResult::Failed;
    }
}
} // namespace

Database::Database(const QString &file, int lockWaitMilliseconds)
{
    sqlite3 *opened = nullptr;
    // No locks inside the connection: it has one user at a time.
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
    const int code = sqlite3_open_v2(file.toUtf8().constData(), &opened, flags, nullptr);
    handle.reset(opened);
    if (code != SQLITE_OK) {
        handle.reset();
        return;
    }
    sqlite3_busy_timeout(opened, lockWaitMilliseconds);
}

SqlResult Database::execute(const QByteArray &sql)
{
    Statement statement(*this, sql);
    SqlResult result = statement.isValid() ? SqlResult::Row : resultOf(sqlite3_errcode(handle.get()));
    while (result == SqlResult::Row)
        result = statement.step();
    return result;
}

QString Database::fault() const
{
    return QString::fromUtf8(handle ? sqlite3_errmsg(handle.get()) : "unable to open database file");
}

void Database::Close::operator()(sqlite3 *connection) const
{
    sqlite3_close_v2(connection);
}

Statement::Statement(Database &database, const QByteArray &sql)
{
    if (!database.handle)
        return;
    sqlite3_stmt *prepared = nullptr;
    const char *rest = nullptr;
    const int size = static_cast<int>(sql.size()) + 1;
    const int code = sqlite3_prepare_v2(database.handle.get(), sql.constData(), size, &prepared, &rest);
    handle.reset(prepared);
    if (code != SQLITE_OK || rest != sql.constData() + sql.size())
        handle.reset();
}

void Statement::bind(int parameter, const QString &text)
{
    if (text.isNull()) {
        sqlite3_bind_null(handle.get(), parameter);
        return;
    }
    const auto index = static_cast<size_t>(parameter - 1);
    if (bound.size() <= index)
        bound.resize(index + 1);
    QByteArray &bytes = bound[index];
    QStringEncoder encoder(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    bytes.resize(encoder.requiredSpace(text.size()));
    const char *const end = encoder.appendToBuffer(bytes.data(), text);
    sqlite3_bind_text(handle.get(), parameter, bytes.constData(), static_cast<int>(end - bytes.constData()),
                      SQLITE_STATIC);
}

SqlResult Statement::step()
{
    return resultOf(sqlite3_step(handle.get()));
}

SqlResult Statement::run()
{
    const SqlResult result = step();
    sqlite3_reset(handle.get());
    return result;
}

QString Statement::text(int column) const
{
    const auto *const bytes = reinterpret_cast<const char *>(sqlite3_column_text(handle.get(), column));
    return QString::fromUtf8(bytes, sqlite3_column_bytes(handle.get(), column));
}

int Statement::column(const char *name) const
{
    for (int i = 0; i < sqlite3_column_count(handle.get()); ++i) {
        if (qstrcmp(sqlite3_column_name(handle.get(), i), name) == 0)
            return i;
    }
    return -1;
}

void Statement::Finalize::operator()(sqlite3_stmt *statement) const
{
    sqlite3_finalize(statement);
}

Transaction::Transaction(Database &connection) : database(connection)
{
    open = database.execute("BEGIN IMMEDIATE") == SqlResult::Done;
}

Transaction::~Transaction()
{
    if (open)
        database.execute("ROLLBACK");
}

bool Transaction::commit()
{
    if (open && database.execute("COMMIT") == SqlResult::Done)
        open = false;
    return !open;
}
