#pragma once

#include "http/Service.h"

#include <string_view>

namespace sandbox::console {

/// The pages under "sandbox/" in a browser and the actions that their forms post. They answer on this machine
/// only.
void addConsole(http::Router &router, http::Service &service);

/// The pages' forms: clock, prices, boards, messages, deposits, orders, faults.
void addActions(http::Router &router, http::Service &service);

/// The text of style.css.
[[nodiscard]] std::string_view styleSheet();

} // namespace sandbox::console
