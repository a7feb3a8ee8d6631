#include "RunningSandbox.h"

#include <fstream>

namespace sandbox::test {
namespace {

constexpr const char *kDemo = "13800138000";

TEST(Account, ANewNumberRegistersTakesEveryStepAndSignsInAgain)
{
    RunningSandbox running;
    Client client = running.client();
    const std::string cell = "13912345678";

    EXPECT_EQ(client.post("user/start", {{"cell", cell}}).at("data").at("bizCode"), "1001");
    const auto verify = [&](const std::string &sms, const std::string &invite) {
        return client.post("user/verify", {{"bizCode", "1001"}, {"userInput", sms}, {"inviteCode", invite}});
    };
    const std::string sms = running.codeFor(cell);
    EXPECT_FALSE(succeeded(verify(sms, "NOBODYHAS"))) << "which does not cost the SMS code";
    const Json registered = verify(sms, running.service().users.byCell(kDemo)->inviteCode);
    EXPECT_EQ(registered.at("data").at("has_register"), "0");
    EXPECT_EQ(registered.at("data").at("nick"), "");
    client.token = registered.at("data").at("api_token");

    const auto step = [&] { return client.get("trade/recharge").at("data").at("next_step").get<int>(); };
    EXPECT_EQ(step(), 2);
    client.post("user/set_nick", {{"nick", "小雨"}});
    EXPECT_EQ(step(), 3);
    client.post("user/set_password", {{"password", "246810"}});
    EXPECT_FALSE(succeeded(client.post("user/set_password", {{"password", "111111"}})));
    EXPECT_EQ(step(), 4);
    client.post("user/set_real_name", {{"realName", "李小雨"}, {"idCard", "11010119900307123x"}});
    EXPECT_EQ(step(), 5);
    const UserId user = running.service().users.byCell(cell)->id;
    EXPECT_TRUE(running.service().users.isIdentity(user, "11010119900307123X"));
    const Json bound = client.post("user/bind_card", {{"province", "浙江省"},
                                                      {"city", "杭州市"},
                                                      {"cardNo", "6222021234567890"},
                                                      {"cell", "13712345678"},
                                                      {"channelCode", "CMB"}});
    const std::string orderId = bound.at("data").at("order_id");
    client.post("user/verify_bind",
                {{"orderId", orderId}, {"code", running.codeFor("13712345678")}, {"cell", "13712345678"}});
    EXPECT_EQ(step(), 6);
    EXPECT_EQ(client.get("trade/recharge").at("data").at("endNumber"), "7890");

    EXPECT_EQ(client.post("user/start", {{"cell", cell}}).at("bizCode"), "1002");
    const Json again =
        client.post("user/verify", {{"bizCode", "1002"}, {"userInput", running.codeFor(cell)}});
    EXPECT_EQ(again.at("data").at("has_register"), "1");
    EXPECT_EQ(again.at("data").at("nick"), "小雨");
}

TEST(Account, AForgottenTradePasswordIsResetStepByStepAndInNoOtherOrder)
{
    RunningSandbox running;
    Client client = running.signedIn();
    EXPECT_TRUE(succeeded(client.get("user/can_update_password")));
    client.post("user/update_password_sms");
    const Fields code{{"bizCode", "1003"}, {"userInput", running.codeFor(kDemo)}};
    const Fields identity{{"idCard", "110101199003070011"}};
    const Fields password{{"password", "654321"}};
    const auto takes = [&](const std::string &path, const Fields &fields) {
        return succeeded(client.post("user/" + path, fields));
    };
    EXPECT_FALSE(takes("update_password", password));
    EXPECT_FALSE(takes("verify_id_card", identity));
    EXPECT_FALSE(takes("verify", code));
    EXPECT_TRUE(takes("update_verify", code));
    EXPECT_FALSE(takes("update_password", password));
    EXPECT_FALSE(takes("verify_id_card", {{"idCard", "110101199003070029"}}));
    EXPECT_TRUE(takes("verify_id_card", identity));
    EXPECT_FALSE(takes("update_password", {{"password", "12345"}}));
    EXPECT_TRUE(takes("update_password", password));
    EXPECT_FALSE(takes("update_password", {{"password", "111111"}}));
    const UserId user = running.service().users.byCell(kDemo)->id;
    EXPECT_EQ(running.service().users.checkTradePassword(user, "654321"), identity::PasswordCheck::Right);
}

TEST(Account, AResetGoesOnAfterARestartAndEndsWithTheFifthWrongIdentityNumber)
{
    RunningSandbox running;
    Client client = running.signedIn();
    client.post("user/update_password_sms");
    client.post("user/update_verify", {{"bizCode", "1003"}, {"userInput", running.codeFor(kDemo)}});
    const std::string token = client.token;
    running.restart();
    Client again = running.client();
    again.token = token;
    Client other = running.signedIn();
    const Fields wrong{{"idCard", "110101199003070029"}};
    EXPECT_EQ(message(other.post("user/verify_id_card", wrong)), "请先验证手机验证码");
    EXPECT_EQ(message(again.post("user/verify_id_card", wrong)), "证件号码与实名认证时不一致，还可以输入4次");
    for (int attempt = 2; attempt < 5; ++attempt)
        again.post("user/verify_id_card", wrong);
    EXPECT_EQ(message(again.post("user/verify_id_card", wrong)), "证件号码错误次数过多，请重新验证手机");
    EXPECT_EQ(message(again.post("user/verify_id_card", {{"idCard", "110101199003070011"}})),
              "请先验证手机验证码");
}

TEST(Account, APictureIsKeptAndAnythingElseRefused)
{
    RunningSandbox running;
    Client client = running.signedIn();
    const auto upload = [&](const std::string &content) {
        const auto result =
            client.raw().Post("/image/upload", client.headers(),
                              {{"kind", "portrait", "", ""}, {"file", content, "me.png", "image/png"}});
        return result ? Json::parse(result->body) : Json();
    };
    const Json kept = upload(std::string("\x89PNG\r\n\x1a\n") + std::string(100'000, '\0'));
    ASSERT_TRUE(succeeded(kept)) << kept;
    const std::string id = kept.at("data").at("image_id");
    EXPECT_TRUE(std::filesystem::exists(running.service().imageFolder / (id + ".png")));
    EXPECT_FALSE(succeeded(upload("#!/bin/sh")));
    EXPECT_FALSE(succeeded(client.post("image/upload", {{"kind", "portrait"}})));
}

TEST(Account, NeitherTokensNorSecretsAreReadableInTheDatabase)
{
    RunningSandbox running;
    const std::string token = running.signedIn().token;
    std::string bytes;
    for (const char *name : {"sandbox.db", "sandbox.db-wal"}) {
        std::ifstream file(running.authority().parent_path() / name, std::ios::binary);
        bytes.append(std::istreambuf_iterator<char>(file), {});
    }
    EXPECT_NE(bytes.find("13800138000"), std::string::npos);
    EXPECT_EQ(bytes.find(token), std::string::npos);
    EXPECT_EQ(bytes.find("110101199003070011"), std::string::npos);
}

} // namespace
} // namespace sandbox::test
