#pragma once

#include "identity/SmsCodes.h"

namespace sandbox::identity {

struct BankCard {
    std::string bankName;
    std::string channelCode;
    std::string tail; ///< last four digits; the rest is not kept
};

struct User {
    UserId id = 0;
    std::string cell;
    std::string nick;
    std::string realName;
    std::string inviteCode; ///< the user's own
    bool hasTradePassword = false;
    std::optional<BankCard> card;

    /// First unfinished step of the account: 2 nickname, 3 trade password, 4 real name, 5 bank card, 6 none.
    [[nodiscard]] int nextStep() const;
};

enum class PasswordCheck { Right, Wrong, Locked };

/**
 * The registered users with their tokens. Tokens and secrets are kept as hashes only. All functions may be
 * called from any thread. Throws StoreError.
 */
class Users {
public:
    Users(const std::string &databasePath, RealNow now);

    std::vector<User> all();
    std::optional<User> byId(UserId id);
    std::optional<User> byCell(const std::string &cell);
    std::optional<User> byInviteCode(const std::string &inviteCode);
    /// `invitedBy` is an invite code or empty. When the number is known already, the user it belongs to.
    User create(const std::string &cell, const std::string &invitedBy);

    /// A new token of the user; the twenty newest are valid.
    std::string issueToken(UserId id);
    std::optional<User> byToken(const std::string &token);

    void setNick(UserId id, const std::string &nick);
    void setRealName(UserId id, const std::string &name, const std::string &identityNumber);
    bool isIdentity(UserId id, const std::string &identityNumber);
    void setCard(UserId id, const BankCard &card);

    void setTradePassword(UserId id, const std::string &password);
    /// Five wrong passwords lock it for fifteen minutes; a right one clears the count.
    PasswordCheck checkTradePassword(UserId id, const std::string &password);
    /// How many wrong passwords are left before the lock.
    int triesLeft(UserId id);

private:
    std::optional<User> find(std::string_view condition, const std::string &value);

    std::recursive_mutex m_mutex;
    Database m_database;
    RealNow m_now;
};

} // namespace sandbox::identity
