#include "RunningSandbox.h"

namespace sandbox::test {
namespace {

class Fault : public testing::Test {
protected:
    Fault() { running.service().brokerage.freezeClock(); }

    void add(const std::string &kind, const std::string &path, Fields more = {})
    {
        more.emplace("kind", kind);
        more.emplace("path", path);
        ASSERT_TRUE(succeeded(client.post("sandbox/fault", more)));
    }

    /// A buy below the market, which stays open.
    httplib::Result buy()
    {
        const Fields fields{{"stockCode", stock},
                            {"entrustPrice", price},
                            {"entrustShares", "100"},
                            {"tradePassword", "123456"}};
        return client.raw().Post("/entrust/createBuy", client.headers(), fields);
    }

    std::size_t openOrders() { return client.get("callBackPage").at("data").size(); }

    /// How many orders there are while the answer of one is outstanding.
    std::size_t openOrdersMeanwhile()
    {
        Client other = running.client();
        other.token = client.token;
        std::thread late([this] { EXPECT_TRUE(succeeded(Json::parse(buy()->body))); });
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        const std::size_t open = other.get("callBackPage").at("data").size();
        late.join();
        return open;
    }

    RunningSandbox running;
    Client client = running.signedIn();
    std::string stock = client.get("holding").at("data").at(0).at("stockCode");
    std::string price =
        client.get("timelyInfo/timelyOrderForm?stockCode=" + stock).at("data").at("lowerLimit");
};

TEST_F(Fault, WhatIsDroppedBeforeAcceptanceIsNotInTheBooksAndWhatIsDroppedAfterItIs)
{
    add("drop-before", "entrust/createBuy", {{"count", "25"}});
    for (int i = 0; i < 25; ++i)
        EXPECT_FALSE(buy());
    EXPECT_EQ(openOrders(), 0u);
    add("drop-after", "entrust/*", {{"count", "25"}, {"delay", "5"}});
    for (int i = 0; i < 25; ++i)
        EXPECT_FALSE(buy());
    EXPECT_TRUE(buy());
    const Json users = client.get("sandbox/state").at("data").at("users");
    EXPECT_EQ(users.at(0).at("orders").size(), 26u);
}

TEST_F(Fault, ALateAnswerIsOfAnOrderThatWasTakenAtOnceUnlessItsAcceptanceIsLate)
{
    add("delay", "entrust/createBuy", {{"delay", "700"}});
    EXPECT_EQ(openOrdersMeanwhile(), 1u);
    add("delay-before", "entrust/createBuy", {{"delay", "700"}});
    EXPECT_EQ(openOrdersMeanwhile(), 1u);
    EXPECT_EQ(openOrders(), 2u);
}

TEST_F(Fault, AnswersAreSpoiltAsAskedAfterTheOrderWasTakenOrInsteadOfIt)
{
    const auto spoilt = [&](const std::string &kind, const Fields &more = {}) {
        add(kind, "entrust/createBuy", more);
        return buy();
    };
    EXPECT_EQ(spoilt("status", {{"status", "503"}})->status, 503);
    EXPECT_EQ(message(Json::parse(spoilt("refuse", {{"message", "维护中"}})->body)), "维护中");
    EXPECT_EQ(openOrders(), 0u);
    EXPECT_TRUE(Json::parse(spoilt("garbage")->body, nullptr, false).is_discarded());
    EXPECT_EQ(spoilt("content-type")->get_header_value("Content-Type"), "application/octet-stream");
    EXPECT_FALSE(spoilt("truncate"));
    EXPECT_EQ(openOrders(), 3u);
}

TEST_F(Fault, CountsDownAndIsCleared)
{
    add("status", "userIndex", {{"count", "2"}, {"status", "500"}});
    const auto status = [&](const char *path) { return client.raw().Get(path)->status; };
    EXPECT_EQ(status("/userIndex"), 500);
    EXPECT_EQ(status("/userIndex"), 500);
    EXPECT_EQ(status("/userIndex"), 200);
    add("status", "*", {{"count", "100"}});
    EXPECT_EQ(status("/userIndex"), 500);
    EXPECT_EQ(status("/sandbox/state"), 200);
    add("clear", "");
    EXPECT_EQ(status("/userIndex"), 200);
    EXPECT_FALSE(succeeded(client.post("sandbox/fault", {{"kind", "earthquake"}})));
}

TEST_F(Fault, AStoppingServiceDoesNotWaitForDelayedCalls)
{
    add("delay", "userIndex", {{"delay", "60000"}});
    Client other = running.client();
    std::thread slow([&other] { static_cast<void>(other.get("userIndex")); });
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    const auto began = std::chrono::steady_clock::now();
    running.restart();
    slow.join();
    EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(5));
}

} // namespace
} // namespace sandbox::test
