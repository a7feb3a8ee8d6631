#pragma once

#include <map>
#include <string>
#include <string_view>

namespace sandbox::http {

/// Names and values of a form or a query; a repeated name keeps its first value.
using Fields = std::map<std::string, std::string, std::less<>>;

/// Reads "a=1&b=%E4%BD%A0". Throws BadRequest when an escape is broken or a text is not UTF-8.
[[nodiscard]] Fields parseForm(std::string_view text);

[[nodiscard]] bool isUtf8(std::string_view text);

/// Number of Unicode characters of a UTF-8 text.
[[nodiscard]] std::size_t characters(std::string_view text);

} // namespace sandbox::http
