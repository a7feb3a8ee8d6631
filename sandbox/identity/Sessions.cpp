#include "identity/Sessions.h"

#include "identity/Secrets.h"

namespace sandbox::identity {

bool Sessions::passwordGiven(const std::string &token)
{
    const std::scoped_lock lock(m_mutex);
    return m_sessions[digest(token)].passwordGiven;
}

void Sessions::setPasswordGiven(const std::string &token)
{
    const std::scoped_lock lock(m_mutex);
    m_sessions[digest(token)].passwordGiven = true;
}

std::optional<PendingCard> Sessions::pendingCard(const std::string &token)
{
    const std::scoped_lock lock(m_mutex);
    return m_sessions[digest(token)].card;
}

void Sessions::setPendingCard(const std::string &token, std::optional<PendingCard> card)
{
    const std::scoped_lock lock(m_mutex);
    m_sessions[digest(token)].card = std::move(card);
}

} // namespace sandbox::identity
