#pragma once

#include "market/Units.h"
#include "store/Database.h"

#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace sandbox::identity {

/// Real time in milliseconds since 1970; people wait for codes in real time, whatever the market's clock
/// does.
using RealNow = std::function<Millis()>;

/// What a code is for; its text on the wire is the business code.
namespace purpose {
inline constexpr const char *registration = "1001";
inline constexpr const char *signIn = "1002";
inline constexpr const char *passwordReset = "1003";
inline constexpr const char *cardBinding = "1004";
} // namespace purpose

struct Sms {
    std::string cell;
    std::string code;
    std::string purpose;
    Millis sentAt = 0;
    bool open = false; ///< can still be used
};

/**
 * The SMS codes sent, which are the inbox of the console too. A code is six digits, valid for five minutes
 * and for one use; a number has one at a time, and no two that can be used are equal, since a code alone
 * tells whose it is. All functions may be called from any thread. Throws StoreError.
 */
class SmsCodes {
public:
    /// `deliver` is called with every message sent, in the caller's thread.
    SmsCodes(const std::string &databasePath, RealNow now, std::function<void(const Sms &)> deliver);

    /// Sends a new code to the number; an older one of the number ends.
    void send(const std::string &cell, const std::string &purpose);

    /// Uses up the code and answers the number that it was sent to. Nothing when no code of this purpose (and
    /// number, when one is given) can be used, and for the rest of a minute in which twenty wrong ones were
    /// tried.
    std::optional<std::string> take(const std::string &code, const std::string &purpose,
                                    const std::string &cell = {});

    /// The newest first.
    std::vector<Sms> inbox(int limit);

private:
    std::mutex m_mutex;
    Database m_database;
    RealNow m_now;
    std::function<void(const Sms &)> m_deliver;
    Millis m_minuteBegan = 0;
    int m_wrong = 0;
};

} // namespace sandbox::identity
