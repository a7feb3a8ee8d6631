#include "RunningSandbox.h"
#include "http/Form.h"

#include <fstream>

namespace sandbox::test {
namespace {

struct Route {
    std::string method;
    std::string path;
    bool needsUser;
    std::string fields; ///< what a well-meant call carries
};

const Route routes[] = {
    {"POST", "user/start", false, "cell=13912345678"},
    {"POST", "user/verify", false, "bizCode=1001&userInput=123456&inviteCode="},
    {"POST", "user/set_nick", true, "nick=小雨"},
    {"POST", "user/set_real_name", true, "realName=李小雨&idCard=110101199003071234"},
    {"POST", "user/bind_card", true,
     "province=浙江&city=杭州&cardNo=6222021234567890&cell=13912345678&channelCode=CMB"},
    {"POST", "user/verify_bind", true, "orderId=1&code=123456&cell=13912345678"},
    {"POST", "user/set_password", true, "password=123456"},
    {"POST", "user/update_password_sms", true, ""},
    {"POST", "user/update_verify", true, "bizCode=1003&userInput=123456"},
    {"POST", "user/verify_id_card", true, "idCard=110101199003071234"},
    {"POST", "user/update_password", true, "password=123456"},
    {"GET", "user/can_update_password", true, ""},
    {"POST", "image/upload", true, "kind=portrait"},
    {"GET", "index/bank_list", false, ""},
    {"GET", "info", false, ""},
    {"GET", "timelyInfo/timelyOrderForm", false, "stockCode=000001"},
    {"GET", "stockDetailPage", false, "stockCode=000001"},
    {"GET", "zorvanePage", true, ""},
    {"GET", "buyPage", true, ""},
    {"GET", "holding", true, ""},
    {"GET", "callBackPage", true, ""},
    {"GET", "entrustsToday", true, "page=0"},
    {"GET", "detailsToday", true, "page=0"},
    {"GET", "warnInfo", true, ""},
    {"POST", "entrust/createBuy", true,
     "stockCode=000001&entrustShares=100&entrustPrice=1&tradePassword=123456"},
    {"POST", "entrust/createSell", true,
     "stockCode=000001&entrustShares=100&entrustPrice=1&tradePassword=123456"},
    {"POST", "entrust/createCancel", true, "tradeEntrustNo=1"},
    {"POST", "entrust/queryEntrustNo", true, "id=1"},
    {"POST", "entrust/queryWithDrawStatus", true, "id=1"},
    {"GET", "trade/recharge", true, ""},
    {"POST", "trade/recharge", true, "amount=100&loanId="},
    {"POST", "trade/verify_recharge", true, "orderId=1"},
    {"GET", "trade/show_withdraw", true, ""},
    {"POST", "trade/withdraw", true, "amount=100&tradePass=123456"},
    {"GET", "trade/query_order_status", true, "orderId=1"},
    {"GET", "walletRecords", true, "page=1"},
    {"GET", "commissions", true, "page=1"},
    {"GET", "userIndex", true, ""},
    {"GET", "loanOverview", false, ""},
    {"GET", "recentLoans", false, ""},
    {"GET", "safeMoney2Supplement", true, ""},
    {"GET", "warn", true, ""},
    {"GET", "msg/list", true, "pageIndex=1&pageSize=100&status=3&source=100"},
    {"PUT", "msg/mark", true, "msgId=1"},
    {"GET", "msg/count", true, ""},
};

httplib::Result send(Client &client, const Route &route, const std::string &fields)
{
    const std::string path = "/" + route.path;
    const std::string query = fields.empty() ? path : path + "?" + fields;
    constexpr const char *formType = "application/x-www-form-urlencoded";
    if (route.method == "POST")
        return client.raw().Post(path, client.headers(), fields, formType);
    if (route.method == "PUT")
        return client.raw().Put(query, client.headers(), "", formType);
    return client.raw().Get(query, client.headers());
}

Json envelopeOf(const httplib::Result &result)
{
    return result ? Json::parse(result->body, nullptr, false) : Json();
}

/// One service for the whole table: it has to stand all of it.
class RouteTable : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        running = std::make_unique<RunningSandbox>();
        token = running->signedIn().token;
    }
    static void TearDownTestSuite() { running.reset(); }
    static Client signedIn()
    {
        Client client = running->client();
        client.token = token;
        return client;
    }
    static std::unique_ptr<RunningSandbox> running;
    static std::string token;
};
std::unique_ptr<RunningSandbox> RouteTable::running;
std::string RouteTable::token;

TEST_F(RouteTable, EveryRouteAnswersWithAnEnvelopeAndNoneIsUnknown)
{
    Client client = signedIn();
    for (const Route &route : routes) {
        const auto result = send(client, route, route.fields);
        const Json envelope = envelopeOf(result);
        ASSERT_TRUE(envelope.is_object()) << route.path;
        EXPECT_EQ(result->status, 200) << route.path;
        EXPECT_EQ(result->get_header_value("Content-Type"), "application/json; charset=utf-8") << route.path;
        EXPECT_TRUE(envelope.at("success").is_boolean() && envelope.at("message").is_string()) << route.path;
        const bool list = route.path == "info";
        EXPECT_TRUE(succeeded(envelope) || list || !message(envelope).empty()) << route.path;
    }
    EXPECT_EQ(client.get("sandbox/state").at("data").at("unknown").at("count"), 0);
}

TEST(Protocol, ItsDescriptionNamesEveryRoute)
{
    std::ifstream file(PROTOCOL_DOCUMENT);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    for (const Route &route : routes)
        EXPECT_NE(text.find("`" + route.method + " " + route.path + "`"), std::string::npos) << route.path;
}

TEST_F(RouteTable, SignedOutCallersAreAskedToSignIn)
{
    for (const std::string &forged : {std::string(), std::string("stale"), std::string(64, '0')}) {
        Client client = running->client();
        client.token = forged;
        for (const Route &route : routes) {
            if (!route.needsUser)
                continue;
            const Json envelope = envelopeOf(send(client, route, route.fields));
            EXPECT_FALSE(succeeded(envelope)) << route.path;
            EXPECT_EQ(message(envelope), "请先登录") << route.path;
        }
    }
}

TEST_F(RouteTable, NoRouteBreaksOnMissingOverlongOrHostileFields)
{
    Client client = signedIn();
    const std::string longText(10'000, '7');
    const std::vector<std::string> values{
        "",      "%20%20", longText,      "-1",           "99999999999999999999",
        "1e308", "%00",    "%27%22%3B--", "%F0%9F%98%80", "%EF%BC%91%EF%BC%92",
        "0x10",  "1.005"};
    for (const Route &route : routes) {
        EXPECT_TRUE(envelopeOf(send(client, route, "")).is_object()) << route.path;
        for (const auto &[name, ignored] : http::parseForm(route.fields)) {
            for (const std::string &value : values) {
                // The first of two fields of one name counts.
                const auto result = send(client, route, name + "=" + value + "&" + route.fields);
                ASSERT_TRUE(result) << route.path << " " << name;
                const bool tooLongForAQuery = result->status == 414 && value == longText;
                EXPECT_TRUE(result->status == 200 || tooLongForAQuery)
                    << route.path << " " << name << " " << result->status;
                EXPECT_TRUE(envelopeOf(result).is_object()) << route.path << " " << name;
            }
        }
    }
    EXPECT_TRUE(succeeded(client.get("userIndex")));
}

TEST_F(RouteTable, BrokenEncodingsAreBadRequests)
{
    Client client = signedIn();
    const auto nick = [&] {
        return client.get("userIndex").at("data").at("asset").at("nick").get<std::string>();
    };
    const std::string before = nick();
    for (const char *fields :
         {"nick=%", "nick=%4", "nick=%zz", "nick=%ff%fe", "nick=%C0%AF", "nick=%ED%A0%80", "nick=\xff"}) {
        const auto result = client.raw().Post("/user/set_nick", client.headers(), fields,
                                              "application/x-www-form-urlencoded");
        ASSERT_TRUE(result) << fields;
        EXPECT_EQ(result->status, 400) << fields;
        EXPECT_FALSE(message(envelopeOf(result)).empty()) << fields;
    }
    const auto json =
        client.raw().Post("/user/set_nick", client.headers(), R"({"nick":"a"})", "application/json");
    EXPECT_EQ(json->status, 415);
    const auto multipart = client.raw().Post("/user/set_nick", client.headers(), "--x\r\nbroken",
                                             "multipart/form-data; boundary=x");
    EXPECT_EQ(multipart->status, 400);
    const std::string long9MB(9 * 1024 * 1024, 'a');
    Client other = signedIn();
    const auto overlong = other.raw().Post("/user/set_nick", other.headers(), "nick=" + long9MB,
                                           "application/x-www-form-urlencoded");
    EXPECT_TRUE(!overlong || overlong->status == 413);
    EXPECT_EQ(nick(), before);
}

TEST_F(RouteTable, UnknownPathsAndMethodsAreCounted)
{
    Client client = running->client();
    const auto count = [&] {
        return client.get("sandbox/state").at("data").at("unknown").at("count").get<int>();
    };
    const int before = count();
    EXPECT_EQ(client.raw().Get("/no/such/path")->status, 404);
    EXPECT_EQ(client.raw().Get("/entrust/createBuy")->status, 405);
    EXPECT_EQ(client.raw().Post("/nothing", "a=b", "application/x-www-form-urlencoded")->status, 404);
    EXPECT_EQ(client.raw().Get("/" + std::string(5000, 'x'))->status, 404);
    EXPECT_EQ(client.raw().Get("/info/")->status, 404);
    EXPECT_EQ(count(), before + 5);
    const Json latest = client.get("sandbox/state").at("data").at("unknown").at("latest");
    EXPECT_EQ(latest.at(latest.size() - 5), "GET no/such/path");
}

TEST_F(RouteTable, TheStockListComesOnceAndThenOnlyItsVersion)
{
    Client client = running->client();
    const Json list = client.get("info");
    EXPECT_FALSE(succeeded(list));
    EXPECT_EQ(message(list), "");
    ASSERT_GT(list.at("data").size(), 4000u);
    for (const Json &row : list.at("data"))
        ASSERT_TRUE(row.at("c").get<std::string>().size() == 6 && !row.at("n").get<std::string>().empty() &&
                    !row.at("s").get<std::string>().empty());
    httplib::Headers headers{{"info_version", code(list)}};
    const Json same = Json::parse(client.raw().Get("/info", headers)->body);
    EXPECT_TRUE(succeeded(same));
    EXPECT_FALSE(same.contains("data"));
    headers = {{"info_version", "0"}};
    EXPECT_FALSE(succeeded(Json::parse(client.raw().Get("/info", headers)->body)));
}

TEST_F(RouteTable, LogLinesCarryNoQueryAndNoSecret)
{
    Client client = signedIn();
    static_cast<void>(client.get("timelyInfo/timelyOrderForm?stockCode=000001"));
    static_cast<void>(client.raw().Get("/evil%0Apath%1b%5b31m", client.headers()));
    bool seen = false;
    for (const std::string &line : running->printed()) {
        seen = seen || line.rfind("GET /timelyInfo/timelyOrderForm 200 ", 0) == 0;
        EXPECT_EQ(line.find(client.token), std::string::npos);
        EXPECT_EQ(line.find('\n'), std::string::npos);
        EXPECT_EQ(line.find('\x1b'), std::string::npos);
        EXPECT_EQ(line.find('='), std::string::npos);
    }
    EXPECT_TRUE(seen);
}

TEST(Form, ReadsWhatAClientWrites)
{
    using http::parseForm;
    const http::Fields fields = parseForm("a=1&b=%E4%BD%A0+x&&c&=&d=1=2&a=3");
    EXPECT_EQ(fields, (http::Fields{{"a", "1"}, {"b", "你 x"}, {"c", ""}, {"d", "1=2"}}));
    EXPECT_EQ(http::characters("你a😀"), 3u);
}

} // namespace
} // namespace sandbox::test
