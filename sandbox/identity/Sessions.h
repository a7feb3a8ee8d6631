#pragma once

#include "identity/Users.h"

#include <map>

namespace sandbox::identity {

/// A bank card whose phone number has not been verified yet.
struct PendingCard {
    std::string orderId;
    std::string cell;
    BankCard card;
};

/// What the service remembers of a token until it restarts. All functions may be called from any thread.
class Sessions {
public:
    /// Whether a right trade password was given with this token since the sign-in and the start of the
    /// sandbox.
    bool passwordGiven(const std::string &token);
    void setPasswordGiven(const std::string &token);

    /// The card that was last offered with this token.
    std::optional<PendingCard> pendingCard(const std::string &token);
    void setPendingCard(const std::string &token, std::optional<PendingCard> card);

private:
    struct Session {
        bool passwordGiven = false;
        std::optional<PendingCard> card;
    };
    std::mutex m_mutex;
    std::map<std::string, Session> m_sessions; ///< by the token's digest
};

} // namespace sandbox::identity
