#pragma once

#include "market/Units.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>

namespace sandbox::messages {

/// Hands events to the push streams of the user they are for. All functions may be called from any thread.
class PushHub {
public:
    /// One open stream. It stops receiving when it is destroyed.
    class Stream {
    public:
        Stream(PushHub &hub, UserId user);
        ~Stream();
        Stream(const Stream &) = delete;
        Stream &operator=(const Stream &) = delete;

        /// The next line with its line break, an empty line every thirty seconds as a heartbeat (the first at
        /// once), "" when there was nothing within `patience`, nothing when the hub was closed.
        std::optional<std::string> next(std::chrono::milliseconds patience);

    private:
        friend class PushHub;
        PushHub &m_hub;
        const UserId m_user;
        std::deque<std::string> m_lines;
        std::chrono::steady_clock::time_point m_heartbeat;
    };

    /// How many streams may be open at a time; each holds a thread of the server.
    static constexpr std::size_t mostStreams = 32;
    /// A new stream; null when there are too many.
    std::shared_ptr<Stream> open(UserId user);

    /// Sends a line (one JSON object, no line break) to every stream of the user. Nobody listening: it is
    /// dropped.
    void send(UserId user, const std::string &line);
    /// How many streams are open.
    std::size_t streams() const;
    /// Ends every stream, for the end of the program.
    void close();

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_news;
    std::set<Stream *> m_streams;
    bool m_closed = false;
};

} // namespace sandbox::messages
