#pragma once

#include "http/Call.h"

namespace sandbox::http {

/// Passes for a caller on this machine who names it as such ("127.0.0.1", "localhost", "[::1]"), so that
/// neither another machine nor a page under a foreign name that resolves to this one reads the sandbox.
/// Throws BadRequest (403).
void requireLocal(const Call &call);

/// As requireLocal, and for a browser also that the form was on a page of this server.
void requireOwnPage(const Call &call);

} // namespace sandbox::http
