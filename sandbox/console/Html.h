#pragma once

#include "http/Call.h"
#include "market/Units.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace sandbox::console {

/// The text with the five characters that mean something in HTML replaced.
[[nodiscard]] std::string escape(std::string_view text);

/// The text as a part of a query, everything but letters and digits percent-encoded.
[[nodiscard]] std::string queryEncode(std::string_view text);

/// "2026-01-05 09:30:00" on the market's clock (UTC+8).
[[nodiscard]] std::string dateTime(Millis time);

/// The time of day alone, "09:30:00".
[[nodiscard]] std::string clockTime(Millis time);

/// A table; the cells are HTML already.
[[nodiscard]] std::string table(const std::string &caption, const std::vector<std::string> &columns,
                                const std::vector<std::vector<std::string>> &rows);

/// A labelled one-line field. `more` are further attributes, such as "type=number".
[[nodiscard]] std::string field(const std::string &label, const std::string &name, const std::string &value,
                                const std::string &more = {});

/// A labelled choice among (value, text) pairs; both are escaped here.
[[nodiscard]] std::string choice(const std::string &label, const std::string &name,
                                 const std::vector<std::pair<std::string, std::string>> &options);

[[nodiscard]] std::string hidden(const std::string &name, const std::string &value);

/// A form that posts to `action` with one button. `subject` completes the button's name for those who do not
/// see the row it stands in.
[[nodiscard]] std::string form(const std::string &action, const std::string &fields,
                               const std::string &button, const std::string &subject = {});

/// A form that leads to `path` with its fields in the query.
[[nodiscard]] std::string question(const std::string &path, const std::string &fields,
                                   const std::string &button);

/// A whole page with the console's navigation. The call tells which page it is and carries the note of the
/// last action.
[[nodiscard]] http::Answer page(const http::Call &call, const std::string &title, const std::string &body,
                                const std::string &head = {});

/// To another page after an action, with a note to show there; a bad one is shown as a failure.
[[nodiscard]] http::Answer redirect(const std::string &path, const std::string &note, bool bad = false);

} // namespace sandbox::console
