#include "http/Routes.h"
#include "http/Shapes.h"

namespace sandbox::http {
namespace {

/// On the wire: 1 unread, 2 read, 3 all.
messages::Show show(const Call &call)
{
    switch (call.number("status", 3, 1, 3)) {
    case 1:
        return messages::Show::Unread;
    case 2:
        return messages::Show::Read;
    default:
        return messages::Show::All;
    }
}

Json list(Service &service, const identity::User &user, const Call &call)
{
    const int page = call.number("pageIndex", 1, 1, 100'000);
    const auto found = service.messages.list(user.id, call.need("source", "消息来源"), show(call), page,
                                             call.number("pageSize", 20, 1, 100));
    Json rows = Json::array();
    for (const messages::Message &message : found.rows)
        rows.push_back(messageJson(message));
    return success({{"data", std::move(rows)}, {"hasNext", found.hasNext}, {"page", page}});
}

Json mark(Service &service, const identity::User &user, const Call &call)
{
    if (!service.messages.markRead(user.id, call.identifier("msgId", "消息编号")))
        throw Refusal("消息不存在");
    return success();
}

Json count(Service &service, const identity::User &user, const Call &)
{
    return success(service.messages.unread(user.id));
}

Answer pushStream(Service &service, const Call &call)
{
    const auto user = service.users.byToken(call.alias);
    if (!user)
        throw BadRequest(401, "请先登录");
    const auto stream = service.push.open(user->id);
    if (!stream)
        throw BadRequest(503, "推送连接过多，请稍后再试");
    Answer answer;
    answer.contentType = "application/x-ndjson";
    answer.stream = [stream] { return stream->next(std::chrono::seconds(1)); };
    return answer;
}

} // namespace

void addMessageRoutes(Router &router, Service &service)
{
    addUserRoute(router, service, "GET", "msg/list", list);
    addUserRoute(router, service, "PUT", "msg/mark", mark);
    addUserRoute(router, service, "GET", "msg/count", count);
    router.page("GET", "sandbox/push", [&service](const Call &call) { return pushStream(service, call); });
}

} // namespace sandbox::http
