#include "http/Router.h"

#include <iostream>

namespace sandbox::http {

Answer Router::enveloped(const Json &envelope, int status)
{
    Answer answer;
    answer.status = status;
    answer.body = envelope.dump(-1, ' ', false, Json::error_handler_t::replace);
    return answer;
}

void Router::json(const std::string &method, const std::string &path, JsonHandler handler)
{
    page(method, path, [handler = std::move(handler)](const Call &call) { return enveloped(handler(call)); });
}

void Router::page(const std::string &method, const std::string &path, Handler handler)
{
    m_routes[path][method] = std::move(handler);
}

Answer Router::dispatch(const Call &call)
{
    const auto route = m_routes.find(call.path);
    if (route == m_routes.end())
        return countUnknown(call, 404);
    const auto handler = route->second.find(call.method == "HEAD" ? "GET" : call.method);
    if (handler == route->second.end())
        return countUnknown(call, 405);
    try {
        return handler->second(call);
    } catch (const Refusal &refusal) {
        return enveloped(failure(refusal.what(), refusal.code, refusal.data));
    } catch (const BadRequest &bad) {
        return enveloped(failure(bad.what()), bad.status);
    } catch (const std::exception &error) {
        std::cerr << "error: " << call.path << ": " << error.what() << std::endl;
        return enveloped(failure("系统繁忙，请稍后再试"), 500);
    }
}

Answer Router::countUnknown(const Call &call, int status)
{
    const std::scoped_lock lock(m_mutex);
    ++m_unknown.count;
    m_unknown.latest.push_back(call.method + " " + call.path.substr(0, 200));
    if (m_unknown.latest.size() > 50)
        m_unknown.latest.pop_front();
    return enveloped(failure("请求的地址不存在"), status);
}

Router::Unknown Router::unknown() const
{
    const std::scoped_lock lock(m_mutex);
    return m_unknown;
}

} // namespace sandbox::http
