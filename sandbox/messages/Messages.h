#pragma once

#include "market/Units.h"
#include "store/Database.h"

#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace sandbox::messages {

namespace source {
inline constexpr const char *system = "100";
inline constexpr const char *activity = "200";
} // namespace source

struct Message {
    std::int64_t id = 0;
    UserId user = 0;
    std::string source; ///< "100" system notice, "200" activity
    std::string title;
    std::string summary;
    std::string content;
    std::string url; ///< a page to open or share, may be empty
    Millis sentAt = 0;
    bool read = false;
};

enum class Show { Unread, Read, All };

struct Page {
    std::vector<Message> rows; ///< the newest first
    bool hasNext = false;
};

/// The users' messages. All functions may be called from any thread. Throws StoreError.
class Messages {
public:
    Messages(const std::string &databasePath, std::function<Millis()> now);

    /// Keeps a message; its id and time are filled in.
    Message add(Message message);
    /// Page numbers count from 1.
    Page list(UserId user, const std::string &source, Show show, int page, int size);
    /// False when the user has no such message.
    bool markRead(UserId user, std::int64_t id);
    int unread(UserId user);

private:
    std::mutex m_mutex;
    Database m_database;
    std::function<Millis()> m_now;
};

} // namespace sandbox::messages
