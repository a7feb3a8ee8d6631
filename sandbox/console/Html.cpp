#include "console/Html.h"

#include <array>
#include <ctime>

namespace sandbox::console {
namespace {

constexpr std::array<std::pair<const char *, const char *>, 4> navigation{
    {{"sandbox/", "SMS inbox"},
     {"sandbox/users", "Users"},
     {"sandbox/market", "Clock and prices"},
     {"sandbox/faults", "Faults"}}};

std::string links(const std::string &current)
{
    std::string result;
    for (const auto &[path, title] : navigation)
        result += std::string("<a href=\"/") + path + "\"" +
                  (current == path ? " aria-current=\"page\"" : "") + ">" + title + "</a>";
    return result;
}

std::string written(Millis time, const char *format)
{
    constexpr Millis shanghai = 8 * 3600 * 1000;
    const std::time_t seconds = (time + shanghai) / 1000;
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), format, &parts);
    return text.data();
}

} // namespace

std::string escape(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (const char c : text) {
        switch (c) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        case '\'':
            result += "&#39;";
            break;
        default:
            result += c;
        }
    }
    return result;
}

std::string queryEncode(std::string_view text)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool plain = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        if (plain)
            result += c;
        else
            result += {'%', digits[byte >> 4], digits[byte & 15]};
    }
    return result;
}

std::string dateTime(Millis time)
{
    return written(time, "%Y-%m-%d %H:%M:%S");
}

std::string clockTime(Millis time)
{
    return written(time, "%H:%M:%S");
}

std::string table(const std::string &caption, const std::vector<std::string> &columns,
                  const std::vector<std::vector<std::string>> &rows)
{
    std::string html = "<div class=\"scroll\" role=\"region\" tabindex=\"0\" aria-label=\"" +
                       escape(caption) + "\"><table><caption>" + escape(caption) + "</caption><thead><tr>";
    for (const std::string &column : columns)
        html += "<th scope=\"col\">" + escape(column) + "</th>";
    html += "</tr></thead><tbody>";
    for (const auto &row : rows) {
        html += "<tr>";
        for (const std::string &cell : row)
            html += "<td>" + cell + "</td>";
        html += "</tr>";
    }
    if (rows.empty())
        html +=
            "<tr><td class=\"none\" colspan=\"" + std::to_string(columns.size()) + "\">Nothing yet</td></tr>";
    return html + "</tbody></table></div>";
}

std::string field(const std::string &label, const std::string &name, const std::string &value,
                  const std::string &more)
{
    return "<label>" + escape(label) + "<input name=\"" + name + "\" value=\"" + escape(value) + "\" " +
           more + "></label>";
}

std::string choice(const std::string &label, const std::string &name,
                   const std::vector<std::pair<std::string, std::string>> &options)
{
    std::string html = "<label>" + escape(label) + "<select name=\"" + name + "\">";
    for (const auto &[value, text] : options)
        html += "<option value=\"" + escape(value) + "\">" + escape(text) + "</option>";
    return html + "</select></label>";
}

std::string hidden(const std::string &name, const std::string &value)
{
    return "<input type=\"hidden\" name=\"" + name + "\" value=\"" + escape(value) + "\">";
}

std::string form(const std::string &action, const std::string &fields, const std::string &button,
                 const std::string &subject)
{
    return "<form method=\"post\" action=\"/" + action + "\">" + fields + "<button>" + escape(button) +
           (subject.empty() ? "" : "<span class=\"unseen\"> " + escape(subject) + "</span>") +
           "</button></form>";
}

std::string question(const std::string &path, const std::string &fields, const std::string &button)
{
    return "<form method=\"get\" action=\"/" + path + "\">" + fields + "<button>" + escape(button) +
           "</button></form>";
}

http::Answer page(const http::Call &call, const std::string &title, const std::string &body,
                  const std::string &head)
{
    const std::string note = call.text("note", 1000);
    const bool bad = call.text("bad") == "1";
    http::Answer answer;
    answer.contentType = "text/html; charset=utf-8";
    answer.headers = {
        {"Content-Security-Policy",
         "default-src 'none'; style-src 'self'; img-src data:; form-action 'self'; base-uri 'none'; "
         "frame-ancestors 'none'"}};
    answer.body = "<!doctype html><html lang=\"en\"><head><meta charset=\"utf-8\">"
                  "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">"
                  "<title>" +
                  escape(title) +
                  " - Zorvane sandbox</title><link rel=\"icon\" href=\"data:,\">"
                  "<link rel=\"stylesheet\" href=\"/sandbox/style.css\">" +
                  head +
                  "</head><body><a class=\"skip\" href=\"#main\">Skip to content</a><header><b>Zorvane "
                  "sandbox</b><nav>" +
                  links(call.path == "sandbox/user" ? "sandbox/users" : call.path) +
                  "</nav></header><main id=\"main\">" +
                  (note.empty() ? ""
                                : "<p role=\"status\" class=\"note" + std::string(bad ? " bad" : "") + "\">" +
                                      escape(note) + "</p>") +
                  "<h1>" + escape(title) + "</h1>" + body + "</main></body></html>";
    return answer;
}

http::Answer redirect(const std::string &path, const std::string &note, bool bad)
{
    http::Answer answer;
    answer.status = 303;
    answer.contentType = "text/plain; charset=utf-8";
    const char joint = path.find('?') == std::string::npos ? '?' : '&';
    answer.headers = {{"Location", "/" + path + joint + "note=" + queryEncode(note) + (bad ? "&bad=1" : "")}};
    return answer;
}

} // namespace sandbox::console
