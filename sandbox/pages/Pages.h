#pragma once

#include "http/Router.h"

namespace sandbox::pages {

/// The pages under "mobile/" that the client shows: rules, guides and agreements.
void addPages(http::Router &router);

} // namespace sandbox::pages
