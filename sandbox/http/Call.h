#pragma once

#include "http/Form.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace sandbox::http {

struct Upload {
    std::string name;
    std::string fileName;
    std::string content;
};

/// One request as handlers see it.
struct Call {
    std::string method; ///< "GET", "POST", "PUT", ...
    std::string path;   ///< without the leading slash, "entrust/createBuy"
    Fields fields;      ///< query fields, and the form's fields, which win
    std::optional<Upload> file;
    std::string token;       ///< header "api_token", may be empty
    std::string infoVersion; ///< header "info_version", may be empty
    std::string alias;       ///< header "alias", may be empty
    std::string host;        ///< header "Host"
    std::string origin;      ///< header "Origin", may be empty
    std::string remote;      ///< address of the caller

    /// The field, or empty text. Throws Refusal when it has more than `longest` characters.
    [[nodiscard]] std::string text(std::string_view name, std::size_t longest = 200) const;

    /// As text(), and throws Refusal when the field is missing or blank; `title` is its name for the user.
    std::string need(std::string_view name, const std::string &title) const;

    /// The field as the identifier of a record: as need(), and 0, which no record has, when it is no number.
    [[nodiscard]] std::int64_t identifier(std::string_view name, const std::string &title) const;

    /// The field as a whole number, brought between `least` and `most`; `otherwise` when missing, Refusal
    /// when it is no number.
    [[nodiscard]] int number(std::string_view name, int otherwise, int least, int most) const;
};

/// What goes back: a body, or a stream that is asked for its next piece until it has none.
struct Answer {
    int status = 200;
    std::string contentType = "application/json; charset=utf-8";
    std::string body;
    std::map<std::string, std::string> headers;
    /// Waits at most a second; empty text: nothing to send yet; nothing: the end.
    std::function<std::optional<std::string>()> stream;
};

} // namespace sandbox::http
