#include "RunningSandbox.h"
#include "console/Html.h"

namespace sandbox::test {
namespace {

class Console : public testing::Test {
protected:
    std::string page(const std::string &path)
    {
        const auto result = client.raw().Get("/" + path);
        if (result && result->status == 303)
            return page(result->get_header_value("Location").substr(1));
        return result && result->status == 200 ? result->body : "";
    }

    /// Posts a form as a page of this server would, and answers the page it leads to.
    std::string submit(const std::string &path, const Fields &fields)
    {
        const auto result = client.raw().Post("/" + path, {{"Origin", origin()}}, fields);
        EXPECT_EQ(result->status, 303) << path;
        return page(result->get_header_value("Location").substr(1));
    }

    std::string origin() const { return "https://127.0.0.1:" + std::to_string(running.sandbox().port()); }

    mutable RunningSandbox running;
    Client client = running.signedIn();
};

TEST_F(Console, ShowsItsPagesAndThoseOfTheClient)
{
    for (const auto &[path, text] : {std::pair<std::string, std::string>{"", running.codeFor("13800138000")},
                                     {"users", "体验用户"},
                                     {"user?id=1", "Holdings"},
                                     {"market", "trading day"},
                                     {"faults", "drop-after"},
                                     {"style.css", "focus-visible"}}) {
        const std::string shown = page("sandbox/" + path);
        EXPECT_NE(shown.find(text), std::string::npos) << path;
        EXPECT_EQ(shown.find(client.token), std::string::npos) << path;
    }
    for (const std::string name : {"recharge_by_bank", "recharge_by_alipay", "about_withdraw_charge",
                                   "stock_buy_rules", "super_partner", "guide_pay", "guide_recharge",
                                   "guide_supplement_earnest", "software_permission_agreement"}) {
        const std::string html = page("mobile/" + name + ".html");
        EXPECT_NE(html.find("getArgs"), std::string::npos) << name;
        EXPECT_NE(html.find("<h1>"), std::string::npos) << name;
    }
}

TEST_F(Console, ItsFormsAct)
{
    EXPECT_NE(submit("sandbox/clock", {{"action", "freeze"}}).find("frozen"), std::string::npos);
    const Millis before = running.service().brokerage.now();
    submit("sandbox/clock", {{"action", "minute"}});
    EXPECT_EQ(running.service().brokerage.now(), before + 60'000);
    const Cents cash = running.service().brokerage.usableMoney(1);
    submit("sandbox/deposit", {{"user", "1"}, {"amount", "1234.56"}});
    EXPECT_EQ(running.service().brokerage.usableMoney(1), cash + 123'456);
    const int unread = client.get("msg/count").at("data");
    submit("sandbox/message", {{"user", "1"}, {"source", "200"}, {"title", "活动"}, {"content", "内容"}});
    EXPECT_EQ(client.get("msg/count").at("data"), unread + 1);
}

TEST_F(Console, DrawnLossLinesReachTheWarningsAndTheStateOfTheAccount)
{
    const auto state = [&] { return client.get("userIndex").at("data").at("userAccountStatus"); };
    EXPECT_EQ(state(), "0");
    EXPECT_EQ(client.get("warnInfo").at("data"), (Json{{"warnLine", "0.00"}, {"closeOutLine", "0.00"}}));
    submit("sandbox/lines", {{"user", "1"}, {"warnLine", "900000"}, {"closeOutLine", "1000.5"}});
    EXPECT_EQ(client.get("warnInfo").at("data"),
              (Json{{"warnLine", "900000.00"}, {"closeOutLine", "1000.50"}}));
    EXPECT_EQ(client.get("warn").at("data").at("warnLine"), "900000.00");
    EXPECT_EQ(state(), "1");
    running.restart();
    const std::string token = client.token;
    client = running.client();
    client.token = token;
    EXPECT_EQ(state(), "1");
    submit("sandbox/lines", {{"user", "1"}, {"warnLine", "900000"}, {"closeOutLine", "800000"}});
    EXPECT_EQ(state(), "2");
}

TEST_F(Console, ABadEntryComesBackAsANoteAndChangesNothing)
{
    const Json before = client.get("sandbox/state").at("data").at("users");
    for (const auto &[form, fields] :
         {std::pair<std::string, Fields>{"deposit", {{"user", "1"}, {"amount", "-5"}}},
          {"deposit", {{"user", "77"}, {"amount", "5"}}},
          {"lines", {{"user", "1"}, {"warnLine", "1"}, {"closeOutLine", "2"}}},
          {"clock", {{"action", "backwards"}}},
          {"clock", {{"action", "to"}, {"time", "2020-01-01T10:00"}}},
          {"clock", {{"action", "to"}, {"time", "2999-01-01T10:00"}}},
          {"clock", {{"action", "to"}, {"time", "2027-02-30T10:00"}}},
          {"clock", {{"action", "to"}}},
          {"price", {{"stockCode", "nope"}, {"price", "1"}}}})
        EXPECT_NE(submit("sandbox/" + form, fields).find("note bad"), std::string::npos) << form;
    EXPECT_EQ(client.get("sandbox/state").at("data").at("users").at(0).at("availableMoney"),
              before.at(0).at("availableMoney"));
}

TEST_F(Console, TextsOfUsersAreShownAndNotExecuted)
{
    client.post("user/set_nick", {{"nick", "<b>\"x\"&'y'"}});
    const std::string shown = page("sandbox/users");
    EXPECT_EQ(shown.find("<b>\"x\""), std::string::npos);
    EXPECT_NE(shown.find("&lt;b&gt;&quot;x&quot;&amp;&#39;y&#39;"), std::string::npos);
    EXPECT_NE(page("sandbox/users?note=%3Cscript%3E").find("&lt;script&gt;"), std::string::npos);
}

TEST_F(Console, RefusesFormsOfOtherSitesAndForeignHostNames)
{
    for (const char *path : {"/sandbox/deposit", "/sandbox/fault"})
        for (const char *origin : {"https://evil.example", "null", "http://127.0.0.1"})
            EXPECT_EQ(client.raw().Post(path, {{"Origin", origin}}, Fields{{"kind", "clear"}})->status, 403)
                << path << " " << origin;
    for (const char *host : {"evil.example", "127.0.0.1.evil.example", ""})
        EXPECT_EQ(client.raw().Get("/sandbox/", {{"Host", host}})->status, 403) << host;
    EXPECT_EQ(client.raw().Get("/sandbox/", {{"Host", "localhost:8443"}})->status, 200);
}

} // namespace
} // namespace sandbox::test
