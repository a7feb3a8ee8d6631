#include "messages/Messages.h"

namespace sandbox::messages {

Messages::Messages(const std::string &databasePath, std::function<Millis()> now)
    : m_database(databasePath), m_now(std::move(now))
{
    m_database.execute(
        "CREATE TABLE IF NOT EXISTS message (id INTEGER PRIMARY KEY AUTOINCREMENT, "
        "user_id INTEGER NOT NULL, source TEXT NOT NULL, title TEXT NOT NULL, summary TEXT NOT NULL, "
        "content TEXT NOT NULL, url TEXT NOT NULL, sent_at INTEGER NOT NULL, read INTEGER NOT NULL);"
        "CREATE INDEX IF NOT EXISTS message_of_user ON message (user_id, source, id)");
}

Message Messages::add(Message message)
{
    const std::scoped_lock lock(m_mutex);
    message.sentAt = m_now();
    Statement(m_database,
              "INSERT INTO message (user_id, source, title, summary, content, url, sent_at, read) "
              "VALUES (?, ?, ?, ?, ?, ?, ?, ?)")
        .bind(message.user, message.source, message.title, message.summary, message.content, message.url,
              message.sentAt, message.read)
        .run();
    message.id = m_database.lastInsertId();
    return message;
}

Page Messages::list(UserId user, const std::string &source, Show show, int page, int size)
{
    const std::scoped_lock lock(m_mutex);
    Statement rows(m_database,
                   "SELECT id, user_id, source, title, summary, content, url, sent_at, read FROM message "
                   "WHERE user_id = ?1 AND source = ?2 AND (?3 < 0 OR read = ?3) "
                   "ORDER BY id DESC LIMIT ?4 OFFSET ?5");
    rows.bind(user, source, show == Show::All ? -1 : static_cast<int>(show == Show::Read), size + 1,
              (page - 1) * size);
    Page result;
    while (rows.step()) {
        if (static_cast<int>(result.rows.size()) == size) {
            result.hasNext = true;
            break;
        }
        result.rows.push_back({rows.integer(0), rows.integer(1), rows.text(2), rows.text(3), rows.text(4),
                               rows.text(5), rows.text(6), rows.integer(7), rows.integer(8) != 0});
    }
    return result;
}

bool Messages::markRead(UserId user, std::int64_t id)
{
    const std::scoped_lock lock(m_mutex);
    Statement(m_database, "UPDATE message SET read = 1 WHERE user_id = ? AND id = ?").bind(user, id).run();
    return m_database.changes() > 0;
}

int Messages::unread(UserId user)
{
    const std::scoped_lock lock(m_mutex);
    Statement count(m_database, "SELECT count(*) FROM message WHERE user_id = ? AND read = 0");
    count.bind(user);
    return count.step() ? static_cast<int>(count.integer(0)) : 0;
}

} // namespace sandbox::messages
