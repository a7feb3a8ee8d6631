#include "http/Body.h"

#include "http/Envelope.h"

namespace sandbox::http {
namespace {

/// Reading failed after so many bytes, or before the first when the announced length is too great.
[[noreturn]] void broken(const httplib::Request &request, std::size_t size)
{
    const auto announced = request.get_header_value<std::uint64_t>("Content-Length");
    throw std::max<std::uint64_t>(size, announced) > longestBody ? BadRequest(413, "请求内容过长")
                                                                 : BadRequest(400, "请求格式不正确");
}

Body readMultipart(const httplib::Request &request, const httplib::ContentReader &read)
{
    std::vector<Upload> parts;
    std::vector<bool> isFile;
    std::size_t size = 0;
    const bool whole = read(
        [&](const httplib::MultipartFormData &header) {
            parts.push_back({header.name, header.filename, {}});
            isFile.push_back(!header.filename.empty() || !header.content_type.empty());
            return true;
        },
        [&](const char *data, std::size_t length) {
            size += length;
            parts.back().content.append(data, length);
            return size <= longestBody;
        });
    if (!whole)
        broken(request, size);
    Body body;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (isFile[i])
            body.upload = std::move(parts[i]);
        else if (!isUtf8(parts[i].name) || !isUtf8(parts[i].content))
            throw BadRequest(400, "请求不是有效的UTF-8文本");
        else
            body.fields.emplace(parts[i].name, parts[i].content);
    }
    return body;
}

} // namespace

Body readBody(const httplib::Request &request, const httplib::ContentReader &read)
{
    if (request.is_multipart_form_data())
        return readMultipart(request, read);
    // A request without either header has no body; reading would wait for the end of the connection.
    if (!request.has_header("Content-Length") && !request.has_header("Transfer-Encoding"))
        return {};
    std::string text;
    const bool whole = read([&text](const char *data, std::size_t length) {
        text.append(data, length);
        return text.size() <= longestBody;
    });
    if (!whole)
        broken(request, text.size());
    const std::string type = request.get_header_value("Content-Type");
    if (!text.empty() && type.rfind("application/x-www-form-urlencoded", 0) != 0)
        throw BadRequest(415, "请求格式不正确");
    return {parseForm(text), {}};
}

} // namespace sandbox::http
