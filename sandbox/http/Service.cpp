#include "http/Service.h"

#include "http/Shapes.h"

namespace sandbox::http {

identity::User signedIn(Service &service, const Call &call)
{
    auto user = service.users.byToken(call.token);
    if (!user)
        throw Refusal("请先登录");
    return *user;
}

void addUserRoute(Router &router, Service &service, const std::string &method, const std::string &path,
                  UserHandler handler)
{
    router.json(method, path, [&service, handler = std::move(handler)](const Call &call) {
        return handler(service, signedIn(service, call), call);
    });
}

void requireTradePassword(Service &service, const Call &call, const identity::User &user,
                          std::string_view field)
{
    const std::string password = call.text(field);
    if (!user.hasTradePassword)
        throw Refusal("请先设置交易密码");
    if (password.empty()) {
        if (!service.sessions.passwordGiven(call.token))
            throw Refusal("请输入交易密码", code::tradePasswordNeeded);
        return;
    }
    switch (service.users.checkTradePassword(user.id, password)) {
    case identity::PasswordCheck::Right:
        service.sessions.setPasswordGiven(call.token);
        return;
    case identity::PasswordCheck::Wrong:
        throw Refusal("交易密码错误，还可以输入" + std::to_string(service.users.triesLeft(user.id)) + "次",
                      code::tradePasswordWrong);
    case identity::PasswordCheck::Locked:
        throw Refusal("交易密码错误次数过多，请15分钟后再试");
    }
}

identity::User registerUser(Service &service, const std::string &cell, const std::string &invitedBy)
{
    identity::User user = service.users.create(cell, invitedBy);
    service.brokerage.createAccount(user.id);
    welcome(service, user.id);
    return user;
}

void welcome(Service &service, UserId user)
{
    messages::Message message;
    message.user = user;
    message.source = messages::source::system;
    message.title = "欢迎使用Zorvane";
    message.summary = "您的账户已开通";
    message.content = "您的账户已开通。这里是模拟环境：公司、行情和资金都不是真实的，请放心尝试。";
    service.messages.add(std::move(message));
}

void sendMessage(Service &service, messages::Message message)
{
    const messages::Message kept = service.messages.add(std::move(message));
    push(service, kept.user, 2, messageJson(kept));
}

void push(Service &service, UserId user, int page, const Json &data)
{
    const std::string line =
        Json{{"pageId", page}, {"data", data}}.dump(-1, ' ', false, Json::error_handler_t::replace);
    service.push.send(user, line);
    if (service.faults.takeDuplicatePush())
        service.push.send(user, line);
}

} // namespace sandbox::http
