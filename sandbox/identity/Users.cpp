#include "identity/Users.h"

#include "identity/Rules.h"
#include "identity/Secrets.h"

#include <algorithm>

namespace sandbox::identity {
namespace {

constexpr int triesBeforeLock = 5;
constexpr Millis lockedFor = 15 * 60 * 1000;
constexpr int validTokens = 20;

constexpr std::string_view schema = R"sql(
CREATE TABLE IF NOT EXISTS user (
    id                 INTEGER PRIMARY KEY AUTOINCREMENT,
    cell               TEXT NOT NULL UNIQUE,
    nick               TEXT NOT NULL DEFAULT '',
    real_name          TEXT NOT NULL DEFAULT '',
    identity_hash      TEXT NOT NULL DEFAULT '',
    invite_code        TEXT NOT NULL UNIQUE,
    invited_by         TEXT NOT NULL DEFAULT '',
    password_hash      TEXT NOT NULL DEFAULT '',
    wrong_passwords    INTEGER NOT NULL DEFAULT 0,
    locked_until       INTEGER NOT NULL DEFAULT 0,
    bank_name          TEXT NOT NULL DEFAULT '',
    channel_code       TEXT NOT NULL DEFAULT '',
    card_tail          TEXT NOT NULL DEFAULT '',
    created_at         INTEGER NOT NULL
);
CREATE TABLE IF NOT EXISTS token (
    id         INTEGER PRIMARY KEY AUTOINCREMENT,
    hash       TEXT NOT NULL UNIQUE,
    user_id    INTEGER NOT NULL REFERENCES user (id),
    created_at INTEGER NOT NULL
);
)sql";

constexpr std::string_view columns = "SELECT id, cell, nick, real_name, invite_code, password_hash <> '', "
                                     "bank_name, channel_code, card_tail FROM user ";

User read(const Statement &row)
{
    User user{row.integer(0), row.text(1), row.text(2), row.text(3), row.text(4), row.integer(5) != 0, {}};
    if (!row.text(8).empty())
        user.card = BankCard{row.text(6), row.text(7), row.text(8)};
    return user;
}

/// Eight letters and digits that are not taken for one another when read aloud.
std::string newInviteCode()
{
    std::string code = randomHex(4);
    std::transform(code.begin(), code.end(), code.begin(), [](char c) {
        constexpr std::string_view letters = "ABCDEFGHJKLMNPQR";
        const int value = c <= '9' ? c - '0' : c - 'a' + 10;
        return letters[static_cast<std::size_t>(value)];
    });
    return code;
}

/// The last place of an identity number may be a small or a capital X.
std::string withCapitalX(std::string identityNumber)
{
    if (!identityNumber.empty() && identityNumber.back() == 'x')
        identityNumber.back() = 'X';
    return identityNumber;
}

} // namespace

int User::nextStep() const
{
    if (nick.empty())
        return 2;
    if (!hasTradePassword)
        return 3;
    if (realName.empty())
        return 4;
    return card ? 6 : 5;
}

Users::Users(const std::string &databasePath, RealNow now) : m_database(databasePath), m_now(std::move(now))
{
    m_database.execute(schema);
}

std::optional<User> Users::find(std::string_view condition, const std::string &value)
{
    const std::scoped_lock lock(m_mutex);
    Statement statement(m_database, std::string(columns) + std::string(condition));
    statement.bind(value);
    return statement.step() ? std::optional(read(statement)) : std::nullopt;
}

std::vector<User> Users::all()
{
    const std::scoped_lock lock(m_mutex);
    Statement statement(m_database, std::string(columns) + "ORDER BY id");
    std::vector<User> users;
    while (statement.step())
        users.push_back(read(statement));
    return users;
}

std::optional<User> Users::byId(UserId id)
{
    return find("WHERE id = ?", std::to_string(id));
}

std::optional<User> Users::byCell(const std::string &cell)
{
    return find("WHERE cell = ?", cell);
}

std::optional<User> Users::byInviteCode(const std::string &inviteCode)
{
    return find("WHERE invite_code = ?", inviteCode);
}

User Users::create(const std::string &cell, const std::string &invitedBy)
{
    const std::scoped_lock lock(m_mutex);
    Statement(m_database, "INSERT INTO user (cell, invite_code, invited_by, created_at) VALUES (?, ?, ?, ?) "
                          "ON CONFLICT (cell) DO NOTHING")
        .bind(cell, newInviteCode(), invitedBy, m_now())
        .run();
    return byCell(cell).value();
}

std::string Users::issueToken(UserId id)
{
    std::string token = randomHex(32);
    const std::scoped_lock lock(m_mutex);
    Transaction transaction(m_database);
    Statement(m_database, "INSERT INTO token (hash, user_id, created_at) VALUES (?, ?, ?)")
        .bind(digest(token), id, m_now())
        .run();
    Statement(m_database, "DELETE FROM token WHERE user_id = ?1 AND id NOT IN "
                          "(SELECT id FROM token WHERE user_id = ?1 ORDER BY id DESC LIMIT ?2)")
        .bind(id, validTokens)
        .run();
    transaction.commit();
    return token;
}

std::optional<User> Users::byToken(const std::string &token)
{
    if (token.empty())
        return {};
    return find("WHERE id = (SELECT user_id FROM token WHERE hash = ?)", digest(token));
}

void Users::setNick(UserId id, const std::string &nick)
{
    const std::scoped_lock lock(m_mutex);
    Statement(m_database, "UPDATE user SET nick = ? WHERE id = ?").bind(nick, id).run();
}

void Users::setRealName(UserId id, const std::string &name, const std::string &identityNumber)
{
    const std::string hash = hashSecret(withCapitalX(identityNumber));
    const std::scoped_lock lock(m_mutex);
    Statement(m_database, "UPDATE user SET real_name = ?, identity_hash = ? WHERE id = ?")
        .bind(name, hash, id)
        .run();
}

bool Users::isIdentity(UserId id, const std::string &identityNumber)
{
    const std::scoped_lock lock(m_mutex);
    Statement statement(m_database, "SELECT identity_hash FROM user WHERE id = ?");
    statement.bind(id);
    return statement.step() && matchesSecret(withCapitalX(identityNumber), statement.text(0));
}

void Users::setCard(UserId id, const BankCard &card)
{
    const std::scoped_lock lock(m_mutex);
    Statement(m_database, "UPDATE user SET bank_name = ?, channel_code = ?, card_tail = ? WHERE id = ?")
        .bind(card.bankName, card.channelCode, card.tail, id)
        .run();
}

void Users::setTradePassword(UserId id, const std::string &password)
{
    const std::string hash = hashSecret(password);
    const std::scoped_lock lock(m_mutex);
    Statement(m_database,
              "UPDATE user SET password_hash = ?, wrong_passwords = 0, locked_until = 0 WHERE id = ?")
        .bind(hash, id)
        .run();
}

PasswordCheck Users::checkTradePassword(UserId id, const std::string &password)
{
    const std::scoped_lock lock(m_mutex);
    Statement statement(m_database,
                        "SELECT password_hash, wrong_passwords, locked_until FROM user WHERE id = ?");
    statement.bind(id);
    if (!statement.step())
        return PasswordCheck::Wrong;
    const std::string hash = statement.text(0);
    const Millis now = m_now();
    const Millis lockedUntil = statement.integer(2);
    const std::int64_t wrongBefore = lockedUntil != 0 && lockedUntil <= now ? 0 : statement.integer(1);
    statement.reset();
    if (lockedUntil > now)
        return PasswordCheck::Locked;
    const bool right = matchesSecret(password, hash);
    const std::int64_t wrong = right ? 0 : wrongBefore + 1;
    const bool locks = wrong >= triesBeforeLock;
    Statement(m_database, "UPDATE user SET wrong_passwords = ?, locked_until = ? WHERE id = ?")
        .bind(wrong, locks ? now + lockedFor : 0, id)
        .run();
    if (right)
        return PasswordCheck::Right;
    return locks ? PasswordCheck::Locked : PasswordCheck::Wrong;
}

int Users::triesLeft(UserId id)
{
    const std::scoped_lock lock(m_mutex);
    Statement statement(m_database, "SELECT wrong_passwords FROM user WHERE id = ?");
    statement.bind(id);
    const int wrong = statement.step() ? static_cast<int>(statement.integer(0)) : 0;
    return std::max(0, triesBeforeLock - wrong);
}

} // namespace sandbox::identity
