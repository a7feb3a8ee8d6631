#include "http/Local.h"

#include "http/Envelope.h"

namespace sandbox::http {
namespace {

bool isLoopbackAddress(const std::string &address)
{
    return address == "::1" || address.rfind("127.", 0) == 0 || address.rfind("::ffff:127.", 0) == 0;
}

bool isLoopbackName(const std::string &host)
{
    const std::size_t end = host[0] == '[' ? host.find(']') + 1 : host.find(':');
    const std::string name = host.substr(0, end);
    return name == "localhost" || name == "127.0.0.1" || name == "[::1]";
}

} // namespace

void requireLocal(const Call &call)
{
    if (!isLoopbackAddress(call.remote) || call.host.empty() || !isLoopbackName(call.host))
        throw BadRequest(403, "控制台只能在本机访问");
}

void requireOwnPage(const Call &call)
{
    requireLocal(call);
    if (!call.origin.empty() && call.origin != "https://" + call.host)
        throw BadRequest(403, "不接受来自其他网页的请求");
}

} // namespace sandbox::http
