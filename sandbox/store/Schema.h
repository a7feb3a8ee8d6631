#pragma once

#include <string_view>

namespace sandbox {

/** The statements of schema.sql, which create what is missing and change nothing that is there. */
std::string_view schemaSql();

} // namespace sandbox
