#include "identity/Resets.h"

#include "identity/Secrets.h"

namespace sandbox::identity {
namespace {

constexpr Millis validFor = 15 * 60 * 1000;
constexpr int triesOfIdentity = 5;

} // namespace

Resets::Resets(const std::string &databasePath, RealNow now) : m_database(databasePath), m_now(std::move(now))
{
    m_database.execute(
        "CREATE TABLE IF NOT EXISTS password_reset (token_hash TEXT PRIMARY KEY, "
        "step INTEGER NOT NULL, wrong_identities INTEGER NOT NULL, stepped_at INTEGER NOT NULL)");
}

ResetStep Resets::step(const std::string &token)
{
    const std::scoped_lock lock(m_mutex);
    Statement find(m_database, "SELECT step FROM password_reset WHERE token_hash = ? AND stepped_at > ?");
    find.bind(digest(token), m_now() - validFor);
    return find.step() ? static_cast<ResetStep>(find.integer(0)) : ResetStep::None;
}

void Resets::setStep(const std::string &token, ResetStep step)
{
    const std::scoped_lock lock(m_mutex);
    Statement(m_database, "DELETE FROM password_reset WHERE token_hash = ? OR stepped_at <= ?")
        .bind(digest(token), m_now() - validFor)
        .run();
    if (step == ResetStep::None)
        return;
    Statement(m_database, "INSERT INTO password_reset (token_hash, step, wrong_identities, stepped_at) "
                          "VALUES (?, ?, 0, ?)")
        .bind(digest(token), static_cast<int>(step), m_now())
        .run();
}

int Resets::countWrongIdentity(const std::string &token)
{
    const std::scoped_lock lock(m_mutex);
    Statement(m_database,
              "UPDATE password_reset SET wrong_identities = wrong_identities + 1 WHERE token_hash = ?")
        .bind(digest(token))
        .run();
    Statement(m_database, "DELETE FROM password_reset WHERE token_hash = ? AND wrong_identities >= ?")
        .bind(digest(token), triesOfIdentity)
        .run();
    Statement count(m_database, "SELECT wrong_identities FROM password_reset WHERE token_hash = ?");
    count.bind(digest(token));
    return count.step() ? triesOfIdentity - static_cast<int>(count.integer(0)) : 0;
}

} // namespace sandbox::identity
