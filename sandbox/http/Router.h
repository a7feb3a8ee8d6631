#pragma once

#include "http/Call.h"
#include "http/Envelope.h"

#include <cstdint>
#include <deque>
#include <map>
#include <mutex>

namespace sandbox::http {

/// Which handler answers which path. Routes are added before the server runs; dispatching is safe from any
/// thread.
class Router {
public:
    using Handler = std::function<Answer(const Call &)>;
    using JsonHandler = std::function<Json(const Call &)>;

    /// A route that answers with an envelope. The handler may throw Refusal and BadRequest.
    void json(const std::string &method, const std::string &path, JsonHandler handler);

    /// A route that answers with a page, a file or a stream.
    void page(const std::string &method, const std::string &path, Handler handler);

    /// Never throws: a refusal, a bad request, an unknown path (404), an unknown method of a known path (405)
    /// and a failure of our own (500) are all answered with an envelope.
    [[nodiscard]] Answer dispatch(const Call &call);

    struct Unknown {
        std::uint64_t count = 0;
        std::deque<std::string> latest; ///< "GET some/path", the newest last, fifty at most
    };
    /// The calls that found no route since the start.
    [[nodiscard]] Unknown unknown() const;

    /// Answers with an envelope as its body.
    [[nodiscard]] static Answer enveloped(const Json &envelope, int status = 200);

private:
    Answer countUnknown(const Call &call, int status);

    std::map<std::string, std::map<std::string, Handler>> m_routes; ///< by path, then by method
    mutable std::mutex m_mutex;
    Unknown m_unknown;
};

} // namespace sandbox::http
