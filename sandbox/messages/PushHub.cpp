#include "messages/PushHub.h"

#include <algorithm>

namespace sandbox::messages {
namespace {

using std::chrono::steady_clock;

constexpr std::chrono::seconds heartbeatEvery{30};
constexpr std::size_t mostWaiting = 1000;

} // namespace

PushHub::Stream::Stream(PushHub &hub, UserId user)
    : m_hub(hub), m_user(user), m_heartbeat(steady_clock::now())
{
    const std::scoped_lock lock(m_hub.m_mutex);
    m_hub.m_streams.insert(this);
}

PushHub::Stream::~Stream()
{
    const std::scoped_lock lock(m_hub.m_mutex);
    m_hub.m_streams.erase(this);
}

std::optional<std::string> PushHub::Stream::next(std::chrono::milliseconds patience)
{
    const auto until = std::min(steady_clock::now() + patience, m_heartbeat);
    std::unique_lock lock(m_hub.m_mutex);
    m_hub.m_news.wait_until(lock, until, [this] { return m_hub.m_closed || !m_lines.empty(); });
    if (m_hub.m_closed)
        return {};
    if (m_lines.empty() && steady_clock::now() < m_heartbeat)
        return "";
    m_heartbeat = steady_clock::now() + heartbeatEvery;
    if (m_lines.empty())
        return "\n";
    std::string line = std::move(m_lines.front());
    m_lines.pop_front();
    return line + "\n";
}

std::shared_ptr<PushHub::Stream> PushHub::open(UserId user)
{
    {
        const std::scoped_lock lock(m_mutex);
        if (m_closed || m_streams.size() >= mostStreams)
            return nullptr;
    }
    return std::make_shared<Stream>(*this, user);
}

void PushHub::send(UserId user, const std::string &line)
{
    {
        const std::scoped_lock lock(m_mutex);
        for (Stream *stream : m_streams)
            if (stream->m_user == user && stream->m_lines.size() < mostWaiting)
                stream->m_lines.push_back(line);
    }
    m_news.notify_all();
}

std::size_t PushHub::streams() const
{
    const std::scoped_lock lock(m_mutex);
    return m_streams.size();
}

void PushHub::close()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_closed = true;
    }
    m_news.notify_all();
}

} // namespace sandbox::messages
