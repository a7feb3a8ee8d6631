#include "identity/SmsCodes.h"

#include "identity/Secrets.h"

namespace sandbox::identity {
namespace {

constexpr Millis validFor = 5 * 60 * 1000;
constexpr int wrongPerMinute = 20;
constexpr int kept = 500;

} // namespace

SmsCodes::SmsCodes(const std::string &databasePath, RealNow now, std::function<void(const Sms &)> deliver)
    : m_database(databasePath), m_now(std::move(now)), m_deliver(std::move(deliver))
{
    m_database.execute(
        "CREATE TABLE IF NOT EXISTS sms (id INTEGER PRIMARY KEY AUTOINCREMENT, cell TEXT NOT NULL, "
        "code TEXT NOT NULL, purpose TEXT NOT NULL, sent_at INTEGER NOT NULL, open INTEGER NOT NULL)");
}

void SmsCodes::send(const std::string &cell, const std::string &purpose)
{
    Sms sms{cell, {}, purpose, m_now(), true};
    {
        const std::scoped_lock lock(m_mutex);
        Transaction transaction(m_database);
        Statement(m_database, "UPDATE sms SET open = 0 WHERE open = 1 AND (cell = ? OR sent_at <= ?)")
            .bind(cell, sms.sentAt - validFor)
            .run();
        Statement taken(m_database, "SELECT 1 FROM sms WHERE open = 1 AND code = ?");
        do {
            sms.code = randomDigits();
            taken.reset();
            taken.bind(sms.code);
        } while (taken.step());
        taken.reset();
        Statement(m_database, "INSERT INTO sms (cell, code, purpose, sent_at, open) VALUES (?, ?, ?, ?, 1)")
            .bind(cell, sms.code, purpose, sms.sentAt)
            .run();
        Statement(m_database, "DELETE FROM sms WHERE open = 0 AND id <= ?")
            .bind(m_database.lastInsertId() - kept)
            .run();
        transaction.commit();
    }
    m_deliver(sms);
}

std::optional<std::string> SmsCodes::take(const std::string &code, const std::string &purpose,
                                          const std::string &cell)
{
    const std::scoped_lock lock(m_mutex);
    const Millis now = m_now();
    if (now - m_minuteBegan >= 60'000) {
        m_minuteBegan = now;
        m_wrong = 0;
    }
    if (m_wrong >= wrongPerMinute)
        return {};
    Statement find(m_database,
                   "SELECT id, cell FROM sms WHERE open = 1 AND code = ?1 AND purpose = ?2 AND sent_at > ?3 "
                   "AND (?4 = '' OR cell = ?4)");
    find.bind(code, purpose, now - validFor, cell);
    if (!find.step()) {
        ++m_wrong;
        return {};
    }
    const std::string found = find.text(1);
    const Millis id = find.integer(0);
    find.reset();
    Statement(m_database, "UPDATE sms SET open = 0 WHERE id = ?").bind(id).run();
    return found;
}

std::vector<Sms> SmsCodes::inbox(int limit)
{
    const std::scoped_lock lock(m_mutex);
    Statement list(m_database, "SELECT cell, code, purpose, sent_at, open FROM sms ORDER BY id DESC LIMIT ?");
    list.bind(limit);
    std::vector<Sms> result;
    while (list.step()) {
        const bool open = list.integer(4) != 0 && list.integer(3) > m_now() - validFor;
        result.push_back({list.text(0), list.text(1), list.text(2), list.integer(3), open});
    }
    return result;
}

} // namespace sandbox::identity
