#pragma once

#include <chrono>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace sandbox::http {

/// What goes wrong with a call. Each kind may be late as well: the work of the call is done at once and its
/// answer held back, except for DelayBefore, DropBefore, Status and Refuse.
enum class FaultKind {
    Delay,         ///< nothing but the delay
    DelayBefore,   ///< the call is accepted late
    DropBefore,    ///< the connection is reset before the call is accepted
    DropAfter,     ///< the work is done and the connection reset instead of an answer
    Status,        ///< an HTTP error status
    Garbage,       ///< a body that is not JSON
    ContentType,   ///< the right body labelled "application/octet-stream"
    Truncate,      ///< half of the announced body, then the end of the connection
    Refuse,        ///< success false with a message
    DuplicatePush, ///< the next push event is sent twice
};

struct Fault {
    std::string path; ///< a path, or its beginning followed by "*"
    FaultKind kind = FaultKind::Delay;
    int count = 1; ///< calls still to be hit
    std::chrono::milliseconds delay{0};
    int status = 500;
    std::string message = "系统繁忙，请稍后再试";
};

/// True when the work of the call is done as soon as it comes.
[[nodiscard]] bool worksAtOnce(FaultKind kind);

[[nodiscard]] std::optional<FaultKind> faultKind(const std::string &name);
[[nodiscard]] std::string faultName(FaultKind kind);
[[nodiscard]] const std::vector<std::string> &faultNames();

/// The faults that wait for their calls. Safe from any thread.
class Faults {
public:
    void add(Fault fault);
    void clear();
    [[nodiscard]] std::vector<Fault> pending() const;

    /// The first waiting fault for a call of this path, counted down. Never one for "sandbox/" paths.
    [[nodiscard]] std::optional<Fault> take(const std::string &path);

    /// True when the next push event is to be sent twice; counted down.
    [[nodiscard]] bool takeDuplicatePush();

private:
    template <typename Matches> std::optional<Fault> takeFirst(Matches matches);

    mutable std::mutex m_mutex;
    std::vector<Fault> m_faults;
};

} // namespace sandbox::http
