#pragma once

#include "http/Call.h"

#include <httplib.h>

namespace sandbox::http {

constexpr std::size_t longestBody = 8 * 1024 * 1024;

/// What a body says, in either of the two form types.
struct Body {
    Fields fields;
    std::optional<Upload> upload;
};

/// Reads the body to its end. Throws BadRequest for a broken, overlong or foreign one.
[[nodiscard]] Body readBody(const httplib::Request &request, const httplib::ContentReader &read);

} // namespace sandbox::http
