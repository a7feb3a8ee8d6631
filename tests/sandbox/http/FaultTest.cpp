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

TEST_F(Fault, AnswersAreSpoiltAsAsked)
{
    add("status", "entrust/createBuy", {{"status", "503"}});
    EXPECT_EQ(buy()->status, 503);
    add("refuse", "entrust/createBuy", {{"message", "维护中"}});
    EXPECT_EQ(message(Json::parse(buy()->body)), "维护中");
    EXPECT_EQ(openOrders(), 0u);

    add("garbage", "entrust/createBuy");
    EXPECT_TRUE(Json::parse(buy()->body, nullptr, false).is_discarded());
    add("content-type", "entrust/createBuy");
    EXPECT_EQ(buy()->get_header_value("Content-Type"), "application/octet-stream");
    EXPECT_EQ(openOrders(), 2u);
    add("truncate", "entrust/createBuy");
    EXPECT_FALSE(buy());
    EXPECT_EQ(openOrders(), 3u);
    EXPECT_TRUE(client.get("sandbox/state").at("data").at("faults").empty());
}

TEST_F(Fault, ADelayHoldsOneCallAndNotTheOthers)
{
    add("delay", "userIndex", {{"delay", "600"}});
    const auto began = std::chrono::steady_clock::now();
    const auto spent = [&] { return std::chrono::steady_clock::now() - began; };
    std::thread slow([this] {
        Client other = running.client();
        other.token = client.token;
        EXPECT_TRUE(succeeded(other.get("userIndex")));
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_TRUE(succeeded(client.get("zorvanePage")));
    EXPECT_LT(spent(), std::chrono::milliseconds(550));
    slow.join();
    EXPECT_GE(spent(), std::chrono::milliseconds(600));
}

TEST_F(Fault, CountsDownAndIsCleared)
{
    add("status", "userIndex", {{"count", "2"}, {"status", "500"}});
    EXPECT_EQ(client.raw().Get("/userIndex")->status, 500);
    EXPECT_EQ(client.raw().Get("/userIndex")->status, 500);
    EXPECT_EQ(client.raw().Get("/userIndex")->status, 200);
    add("status", "*", {{"count", "100"}});
    EXPECT_EQ(client.raw().Get("/userIndex")->status, 500);
    EXPECT_EQ(client.raw().Get("/sandbox/state")->status, 200);
    add("clear", "");
    EXPECT_EQ(client.raw().Get("/userIndex")->status, 200);
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
