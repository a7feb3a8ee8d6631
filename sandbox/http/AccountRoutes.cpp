#include "http/Routes.h"
#include "http/Shapes.h"
#include "identity/Banks.h"
#include "identity/Rules.h"
#include "identity/Secrets.h"

#include <fstream>

namespace sandbox::http {
namespace {

using namespace identity;

constexpr const char *wrongCode = "验证码错误或已过期，请重新获取";

Json start(Service &service, const Call &call)
{
    const std::string cell = call.need("cell", "手机号");
    if (!isCell(cell))
        throw Refusal("手机号格式不正确，请重新输入");
    const std::string bizCode = service.users.byCell(cell) ? purpose::signIn : purpose::registration;
    service.sms.send(cell, bizCode);
    Json envelope = success({{"bizCode", bizCode}, {"cell", cell}});
    envelope["bizCode"] = bizCode;
    return envelope;
}

Json verify(Service &service, const Call &call)
{
    const std::string bizCode = call.need("bizCode", "交易码");
    const std::string code = call.need("userInput", "手机验证码");
    const std::string inviteCode = call.text("inviteCode");
    if (bizCode != purpose::registration && bizCode != purpose::signIn)
        throw Refusal("交易码异常");
    if (!inviteCode.empty() && !service.users.byInviteCode(inviteCode))
        throw Refusal("邀请码不存在，请检查后重新输入");
    const auto cell = service.sms.take(code, bizCode);
    if (!cell)
        throw Refusal(wrongCode);
    const auto known = service.users.byCell(*cell);
    const User user = known ? *known : registerUser(service, *cell, inviteCode);
    return success(userJson(user, service.users.issueToken(user.id), known.has_value()));
}

Json setNick(Service &service, const User &user, const Call &call)
{
    const std::string nick = call.need("nick", "昵称");
    if (characters(nick) > 20)
        throw Refusal("昵称最多十个汉字");
    service.users.setNick(user.id, nick);
    return success({{"nick", nick}});
}

Json setRealName(Service &service, User user, const Call &call)
{
    const std::string name = call.need("realName", "姓名");
    const std::string number = call.need("idCard", "身份证号");
    if (!isRealName(name))
        throw Refusal("请输入正确的姓名");
    if (!isIdentityNumber(number))
        throw Refusal("身份证格式不正确，请重新输入");
    if (!user.realName.empty())
        throw Refusal("您已完成实名认证");
    service.users.setRealName(user.id, name, number);
    user.realName = name;
    return success({{"name", name}, {"next_step", user.nextStep()}});
}

Json bindCard(Service &service, const User &user, const Call &call)
{
    const std::string number = call.need("cardNo", "银行卡号");
    const std::string cell = call.need("cell", "银行预留手机号");
    call.need("province", "开户省份");
    call.need("city", "开户城市");
    const Bank *bank = findBank(call.text("channelCode"));
    if (user.realName.empty())
        throw Refusal("请先开通资金托管账户");
    if (user.card)
        throw Refusal("您已绑定银行卡");
    if (!bank)
        throw Refusal("暂不支持该银行");
    if (!isBankCard(number))
        throw Refusal("银行卡格式不正确，请重新输入");
    if (!isCell(cell))
        throw Refusal("手机号格式不正确，请重新输入");
    const std::string orderId = randomHex(8);
    service.sessions.setPendingCard(
        call.token,
        PendingCard{orderId, cell, {bank->name, bank->channelCode, number.substr(number.size() - 4)}});
    service.sms.send(cell, purpose::cardBinding);
    return success({{"order_id", orderId}, {"cell", cell}});
}

Json verifyBind(Service &service, User user, const Call &call)
{
    const std::string code = call.need("code", "手机验证码");
    const auto pending = service.sessions.pendingCard(call.token);
    if (!pending || (!call.text("orderId").empty() && call.text("orderId") != pending->orderId))
        throw Refusal("请重新获取验证码");
    if (!service.sms.take(code, purpose::cardBinding, pending->cell))
        throw Refusal(wrongCode);
    service.users.setCard(user.id, pending->card);
    service.sessions.setPendingCard(call.token, {});
    user.card = pending->card;
    return success({{"next_step", user.nextStep()}, {"notice", ""}});
}

Json bankList()
{
    Json list = Json::array();
    for (const Bank &bank : banks())
        list.push_back({{"bankName", bank.name},
                        {"channelName", bank.name},
                        {"image", ""},
                        {"channelCode", bank.channelCode}});
    return success(std::move(list));
}

std::string newPassword(const Call &call)
{
    std::string password = call.need("password", "交易密码");
    if (!isSixDigits(password))
        throw Refusal("交易密码须为6位数字");
    return password;
}

Json setPassword(Service &service, User user, const Call &call)
{
    const std::string password = newPassword(call);
    if (user.hasTradePassword)
        throw Refusal("您已设置过交易密码");
    service.users.setTradePassword(user.id, password);
    user.hasTradePassword = true;
    return success({{"next_step", user.nextStep()}});
}

void requireResettable(const User &user)
{
    if (!user.hasTradePassword)
        throw Refusal("请先设置交易密码");
    if (user.realName.empty())
        throw Refusal("请先开通资金托管账户");
}

Json canUpdatePassword(Service &, const User &user, const Call &)
{
    requireResettable(user);
    return success({{"canUpdate", "1"}});
}

Json sendResetCode(Service &service, const User &user, const Call &call)
{
    requireResettable(user);
    service.resets.setStep(call.token, ResetStep::None);
    service.sms.send(user.cell, purpose::passwordReset);
    Json envelope = success({{"bizCode", purpose::passwordReset}, {"cell", user.cell}});
    envelope["bizCode"] = purpose::passwordReset;
    return envelope;
}

Json verifyResetCode(Service &service, const User &user, const Call &call)
{
    const std::string code = call.need("userInput", "手机验证码");
    if (call.need("bizCode", "交易码") != purpose::passwordReset)
        throw Refusal("交易码异常");
    if (!service.sms.take(code, purpose::passwordReset, user.cell))
        throw Refusal(wrongCode);
    service.resets.setStep(call.token, ResetStep::CodeVerified);
    return success();
}

Json verifyIdentity(Service &service, const User &user, const Call &call)
{
    const std::string number = call.need("idCard", "身份证号");
    if (service.resets.step(call.token) == ResetStep::None)
        throw Refusal("请先验证手机验证码");
    if (!service.users.isIdentity(user.id, number)) {
        const int left = service.resets.countWrongIdentity(call.token);
        if (left == 0)
            throw Refusal("证件号码错误次数过多，请重新验证手机");
        throw Refusal("证件号码与实名认证时不一致，还可以输入" + std::to_string(left) + "次");
    }
    service.resets.setStep(call.token, ResetStep::IdentityVerified);
    return success();
}

Json updatePassword(Service &service, const User &user, const Call &call)
{
    const std::string password = newPassword(call);
    if (service.resets.step(call.token) != ResetStep::IdentityVerified)
        throw Refusal("请先完成身份验证");
    service.users.setTradePassword(user.id, password);
    service.resets.setStep(call.token, ResetStep::None);
    return success();
}

/// "png", "jpg", or nothing for a content that is no picture.
std::string pictureKind(const std::string &content)
{
    if (content.rfind("\x89PNG\r\n\x1a\n", 0) == 0)
        return "png";
    return content.rfind("\xff\xd8\xff", 0) == 0 ? "jpg" : "";
}

Json uploadImage(Service &service, const User &user, const Call &call)
{
    const std::string kind = call.file ? pictureKind(call.file->content) : "";
    if (kind.empty())
        throw Refusal("请选择一张PNG或JPEG图片");
    const std::string id = std::to_string(user.id) + "-" + randomHex(8);
    std::filesystem::create_directories(service.imageFolder);
    std::ofstream file(service.imageFolder / (id + "." + kind), std::ios::binary);
    file.write(call.file->content.data(), static_cast<std::streamsize>(call.file->content.size()));
    if (!file.flush())
        throw std::runtime_error("cannot keep the picture");
    return success({{"image_id", id}});
}

} // namespace

void addAccountRoutes(Router &router, Service &service)
{
    router.json("POST", "user/start", [&service](const Call &call) { return start(service, call); });
    router.json("POST", "user/verify", [&service](const Call &call) { return verify(service, call); });
    const auto post = [&](const std::string &path, UserHandler handler) {
        addUserRoute(router, service, "POST", path, std::move(handler));
    };
    post("user/set_nick", setNick);
    post("user/set_real_name", setRealName);
    post("user/bind_card", bindCard);
    post("user/verify_bind", verifyBind);
    post("user/set_password", setPassword);
    post("user/update_password_sms", sendResetCode);
    post("user/update_verify", verifyResetCode);
    post("user/verify_id_card", verifyIdentity);
    post("user/update_password", updatePassword);
    post("image/upload", uploadImage);
    addUserRoute(router, service, "GET", "user/can_update_password", canUpdatePassword);
    router.json("GET", "index/bank_list", [](const Call &) { return bankList(); });
}

} // namespace sandbox::http
