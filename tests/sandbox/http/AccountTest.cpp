#include "RunningSandbox.h"

#include <fstream>

namespace sandbox::test {
namespace {

TEST(Account, ANewNumberRegistersTakesEveryStepAndSignsInAgain)
{
    RunningSandbox running;
    Client client = running.client();
    const std::string cell = "13912345678";

    Json started = client.post("user/start", {{"cell", cell}});
    EXPECT_EQ(started.at("bizCode"), "1001");
    EXPECT_EQ(started.at("data").at("bizCode"), "1001");
    const Json registered = client.post(
        "user/verify", {{"bizCode", "1001"}, {"userInput", running.codeFor(cell)}, {"inviteCode", ""}});
    ASSERT_TRUE(succeeded(registered)) << registered;
    EXPECT_EQ(registered.at("data").at("has_register"), "0");
    EXPECT_EQ(registered.at("data").at("cell"), cell);
    EXPECT_EQ(registered.at("data").at("nick"), "");
    client.token = registered.at("data").at("api_token");

    EXPECT_EQ(client.get("trade/recharge").at("data").at("next_step"), 2);
    EXPECT_TRUE(succeeded(client.post("user/set_nick", {{"nick", "小雨"}})));
    EXPECT_EQ(client.get("trade/recharge").at("data").at("next_step"), 3);
    EXPECT_TRUE(succeeded(client.post("user/set_password", {{"password", "246810"}})));
    EXPECT_FALSE(succeeded(client.post("user/set_password", {{"password", "111111"}})));
    EXPECT_EQ(client.get("trade/recharge").at("data").at("next_step"), 4);
    const Json named =
        client.post("user/set_real_name", {{"realName", "李小雨"}, {"idCard", "11010119900307123X"}});
    EXPECT_EQ(named.at("data").at("name"), "李小雨");
    EXPECT_EQ(named.at("data").at("next_step"), 5);
    const Json bound = client.post("user/bind_card", {{"province", "浙江省"},
                                                      {"city", "杭州市"},
                                                      {"cardNo", "6222021234567890"},
                                                      {"cell", "13712345678"},
                                                      {"channelCode", "CMB"}});
    ASSERT_TRUE(succeeded(bound)) << bound;
    const std::string orderId = bound.at("data").at("order_id");
    const Json done = client.post(
        "user/verify_bind",
        {{"orderId", orderId}, {"code", running.codeFor("13712345678")}, {"cell", "13712345678"}});
    EXPECT_EQ(done.at("data").at("next_step"), 6);
    EXPECT_EQ(client.get("trade/recharge").at("data").at("endNumber"), "7890");

    started = client.post("user/start", {{"cell", cell}});
    EXPECT_EQ(started.at("bizCode"), "1002");
    const Json again =
        client.post("user/verify", {{"bizCode", "1002"}, {"userInput", running.codeFor(cell)}});
    EXPECT_EQ(again.at("data").at("has_register"), "1");
    EXPECT_EQ(again.at("data").at("nick"), "小雨");
}

TEST(Account, AnInviteCodeMustBelongToSomebodyAndDoesNotCostTheSmsCode)
{
    RunningSandbox running;
    Client client = running.client();
    client.post("user/start", {{"cell", "13912345678"}});
    const std::string sms = running.codeFor("13912345678");
    EXPECT_FALSE(succeeded(
        client.post("user/verify", {{"bizCode", "1001"}, {"userInput", sms}, {"inviteCode", "NOBODYHAS"}})));
    const std::string invite = running.service().users.byCell("13800138000")->inviteCode;
    EXPECT_TRUE(succeeded(
        client.post("user/verify", {{"bizCode", "1001"}, {"userInput", sms}, {"inviteCode", invite}})));
}

TEST(Account, ACodeWorksOnceForItsPurposeOnlyAndResendingReplacesIt)
{
    RunningSandbox running;
    Client client = running.client();
    client.post("user/start", {{"cell", "13912345678"}});
    const std::string first = running.codeFor("13912345678");
    EXPECT_FALSE(succeeded(client.post("user/verify", {{"bizCode", "1002"}, {"userInput", first}})));
    client.post("user/start", {{"cell", "13912345678"}});
    const std::string second = running.codeFor("13912345678");
    EXPECT_FALSE(succeeded(client.post("user/verify", {{"bizCode", "1001"}, {"userInput", first}})));
    EXPECT_TRUE(succeeded(client.post("user/verify", {{"bizCode", "1001"}, {"userInput", second}})));
    EXPECT_FALSE(succeeded(client.post("user/verify", {{"bizCode", "1001"}, {"userInput", second}})));
}

TEST(Account, AForgottenTradePasswordIsResetStepByStepAndInNoOtherOrder)
{
    RunningSandbox running;
    Client client = running.signedIn();
    EXPECT_TRUE(succeeded(client.get("user/can_update_password")));
    EXPECT_FALSE(succeeded(client.post("user/update_password", {{"password", "654321"}})));
    const Json sent = client.post("user/update_password_sms");
    const std::string bizCode = sent.at("bizCode");
    EXPECT_FALSE(succeeded(client.post("user/verify_id_card", {{"idCard", "110101199003070011"}})));
    const std::string sms = running.codeFor("13800138000");
    EXPECT_FALSE(succeeded(client.post("user/verify", {{"bizCode", bizCode}, {"userInput", sms}})));
    EXPECT_TRUE(succeeded(client.post("user/update_verify", {{"bizCode", bizCode}, {"userInput", sms}})));
    EXPECT_FALSE(succeeded(client.post("user/update_password", {{"password", "654321"}})));
    EXPECT_FALSE(succeeded(client.post("user/verify_id_card", {{"idCard", "110101199003070029"}})));
    EXPECT_TRUE(succeeded(client.post("user/verify_id_card", {{"idCard", "110101199003070011"}})));
    EXPECT_FALSE(succeeded(client.post("user/update_password", {{"password", "12345"}})));
    EXPECT_TRUE(succeeded(client.post("user/update_password",
                                      {{"password", "654321"}, {"bizCode", bizCode}, {"idCard", "x"}})));
    EXPECT_FALSE(succeeded(client.post("user/update_password", {{"password", "111111"}})));
    const UserId user = running.service().users.byCell("13800138000")->id;
    EXPECT_EQ(running.service().users.checkTradePassword(user, "654321"), identity::PasswordCheck::Right);
}

TEST(Account, AResetGoesOnAfterARestartAndEndsWithTheFifthWrongIdentityNumber)
{
    RunningSandbox running;
    Client client = running.signedIn();
    client.post("user/update_password_sms");
    client.post("user/update_verify", {{"bizCode", "1003"}, {"userInput", running.codeFor("13800138000")}});
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

TEST(Account, AnIdentityNumberMayEndInASmallX)
{
    RunningSandbox running;
    Client client = running.signedIn("13912345678");
    client.post("user/set_real_name", {{"realName", "李小雨"}, {"idCard", "11010119900307123x"}});
    const UserId user = running.service().users.byCell("13912345678")->id;
    EXPECT_TRUE(running.service().users.isIdentity(user, "11010119900307123X"));
    EXPECT_FALSE(running.service().users.isIdentity(user, "110101199003071230"));
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

TEST(Account, UsersTokensAndPasswordsOutliveARestartButNotTheGivenPassword)
{
    RunningSandbox running;
    const std::string token = running.signedIn().token;
    static_cast<void>(running.signedIn("13912345678"));
    running.restart();
    Client client = running.client();
    client.token = token;
    EXPECT_EQ(client.get("userIndex").at("data").at("asset").at("nick"), "体验用户");
    EXPECT_EQ(client.post("user/start", {{"cell", "13912345678"}}).at("bizCode"), "1002");
    const Fields order{{"stockCode", "000001"}, {"entrustPrice", "1"}, {"entrustShares", "100"}};
    EXPECT_EQ(code(client.post("entrust/createBuy", order)), "12000");
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
