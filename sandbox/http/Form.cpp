#include "http/Form.h"

#include "http/Envelope.h"

#include <algorithm>

namespace sandbox::http {
namespace {

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

std::string decode(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            result += text[i] == '+' ? ' ' : text[i];
            continue;
        }
        const int high = i + 2 < text.size() ? hexDigit(text[i + 1]) : -1;
        const int low = i + 2 < text.size() ? hexDigit(text[i + 2]) : -1;
        if (high < 0 || low < 0)
            throw BadRequest(400, "请求格式不正确");
        result += static_cast<char>(high * 16 + low);
        i += 2;
    }
    if (!isUtf8(result))
        throw BadRequest(400, "请求不是有效的UTF-8文本");
    return result;
}

/// Length of the well-formed UTF-8 sequence at the front, 0 when there is none.
std::size_t sequenceLength(std::string_view text)
{
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const auto follows = [&](std::size_t i) { return i < text.size() && (byte(i) & 0xC0) == 0x80; };
    const unsigned char first = byte(0);
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first <= 0xDF)
        return follows(1) ? 2 : 0;
    if (first >= 0xE0 && first <= 0xEF) {
        const bool overlong = first == 0xE0 && text.size() > 1 && byte(1) < 0xA0;
        const bool surrogate = first == 0xED && text.size() > 1 && byte(1) > 0x9F;
        return !overlong && !surrogate && follows(1) && follows(2) ? 3 : 0;
    }
    if (first >= 0xF0 && first <= 0xF4) {
        const bool overlong = first == 0xF0 && text.size() > 1 && byte(1) < 0x90;
        const bool beyond = first == 0xF4 && text.size() > 1 && byte(1) > 0x8F;
        return !overlong && !beyond && follows(1) && follows(2) && follows(3) ? 4 : 0;
    }
    return 0;
}

} // namespace

bool isUtf8(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t length = sequenceLength(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

std::size_t characters(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

Fields parseForm(std::string_view text)
{
    Fields fields;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('&'), text.size());
        const std::string_view pair = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        const std::size_t equals = std::min(pair.find('='), pair.size());
        std::string name = decode(pair.substr(0, equals));
        if (!name.empty())
            fields.emplace(std::move(name), decode(pair.substr(std::min(equals + 1, pair.size()))));
    }
    return fields;
}

} // namespace sandbox::http
