#include "http/Call.h"

#include "http/Envelope.h"

#include <algorithm>
#include <charconv>

namespace sandbox::http {

std::string Call::text(std::string_view name, std::size_t longest) const
{
    const auto found = fields.find(name);
    if (found == fields.end())
        return {};
    if (characters(found->second) > longest)
        throw Refusal("输入内容过长");
    return found->second;
}

std::string Call::need(std::string_view name, const std::string &title) const
{
    std::string value = text(name);
    const bool blank = std::all_of(value.begin(), value.end(), [](char c) { return c == ' ' || c == '\t'; });
    if (blank)
        throw Refusal("请输入" + title);
    return value;
}

std::int64_t Call::identifier(std::string_view name, const std::string &title) const
{
    const std::string value = need(name, title);
    std::int64_t id = 0;
    const auto [rest, error] = std::from_chars(value.data(), value.data() + value.size(), id);
    return error == std::errc() && rest == value.data() + value.size() ? id : 0;
}

int Call::number(std::string_view name, int otherwise, int least, int most) const
{
    const std::string value = text(name);
    if (value.empty())
        return otherwise;
    int result = 0;
    const char *end = value.data() + value.size();
    const auto [rest, error] = std::from_chars(value.data(), end, result);
    if (error != std::errc() || rest != end)
        throw Refusal("数字格式不正确");
    return std::clamp(result, least, most);
}

} // namespace sandbox::http
