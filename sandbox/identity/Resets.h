#pragma once

#include "identity/SmsCodes.h"

namespace sandbox::identity {

/// How far the reset of a trade password has come.
enum class ResetStep { None, CodeVerified, IdentityVerified };

/**
 * The resets of trade passwords on their way, one a token. A reset ends a quarter of an hour after its last
 * step, and with the fifth wrong identity number. All functions may be called from any thread. Throws
 * StoreError.
 */
class Resets {
public:
    Resets(const std::string &databasePath, RealNow now);

    ResetStep step(const std::string &token);
    void setStep(const std::string &token, ResetStep step);
    /// Counts a wrong identity number; how many more may be tried, 0 when the reset has ended.
    int countWrongIdentity(const std::string &token);

private:
    std::mutex m_mutex;
    Database m_database;
    RealNow m_now;
};

} // namespace sandbox::identity
