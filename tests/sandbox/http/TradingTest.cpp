#include "RunningSandbox.h"

namespace sandbox::test {
namespace {

class Trading : public testing::Test {
protected:
    Trading() { running.service().brokerage.freezeClock(); }

    Json quote(const std::string &stock)
    {
        return client.get("timelyInfo/timelyOrderForm?stockCode=" + stock).at("data");
    }

    Json order(const std::string &side, const std::string &stock, const std::string &price, int shares,
               const std::string &password = {})
    {
        Fields fields{
            {"stockCode", stock}, {"entrustPrice", price}, {"entrustShares", std::to_string(shares)}};
        if (!password.empty())
            fields.emplace("tradePassword", password);
        return client.post("entrust/create" + side, fields);
    }

    /// A stock that trades today.
    std::string anyStock()
    {
        for (const Stock &stock : running.service().brokerage.stocks().all())
            if (!stock.suspended && !stock.specialTreatment && stock.code > "601000")
                return stock.code;
        return {};
    }

    RunningSandbox running;
    Client client = running.signedIn();
};

TEST_F(Trading, OneRightPasswordServesTheSessionAndAnotherSignInOrARestartNeedsItsOwn)
{
    const std::string stock = anyStock();
    const std::string low = quote(stock).at("lowerLimit");
    EXPECT_EQ(code(order("Buy", stock, low, 100)), "12000");
    EXPECT_EQ(code(order("Buy", stock, low, 100, "000000")), "12002");
    EXPECT_EQ(client.get("callBackPage").at("data").size(), 0u);
    ASSERT_TRUE(succeeded(order("Buy", stock, low, 100, "123456")));
    EXPECT_TRUE(succeeded(order("Buy", stock, low, 100)));
    const std::string token = client.token;
    client = running.signedIn();
    EXPECT_EQ(code(order("Buy", stock, low, 100)), "12000");
    running.restart();
    client = running.client();
    client.token = token;
    EXPECT_EQ(code(order("Buy", stock, low, 100)), "12000") << "still signed in, but asked for the password";
}

TEST_F(Trading, FiveWrongPasswordsLockTradingWithAMessageInsteadOfTheCode)
{
    const std::string stock = anyStock();
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(code(order("Buy", stock, "10.00", 100, "000000")), "12002");
    const Json locked = order("Buy", stock, "10.00", 100, "000000");
    EXPECT_EQ(code(locked), "");
    EXPECT_NE(message(locked).find("15分钟"), std::string::npos);
    EXPECT_EQ(code(order("Buy", stock, "10.00", 100, "123456")), "");
}

TEST_F(Trading, ADealTellsItsOrderUnderBothNames)
{
    const std::string stock = anyStock();
    const Json bought = order("Buy", stock, quote(stock).at("upperLimit"), 100, "123456");
    const Json deal = client.get("detailsToday?page=0").at("data").at(0);
    EXPECT_EQ(deal.at("entrustId"), bought.at("data").at("id"));
    EXPECT_EQ(deal.at("entrutsId"), deal.at("entrustId"));
}

TEST_F(Trading, NobodySeesOrCancelsTheOrdersOfAnother)
{
    const std::string stock = anyStock();
    const Json placed = order("Buy", stock, quote(stock).at("lowerLimit"), 100, "123456");
    const std::string id = placed.at("data").at("id");
    const std::string number = placed.at("data").at("entrustNo");
    Client stranger = running.signedIn("13912345678");
    EXPECT_TRUE(stranger.get("entrustsToday").at("data").empty());
    EXPECT_FALSE(succeeded(stranger.post("entrust/createCancel", {{"tradeEntrustNo", number}})));
    EXPECT_FALSE(succeeded(stranger.post("entrust/queryWithDrawStatus", {{"id", id}})));
    EXPECT_FALSE(succeeded(stranger.post("entrust/queryEntrustNo", {{"id", id}})));
    EXPECT_EQ(client.get("callBackPage").at("data").size(), 1u);
}

} // namespace
} // namespace sandbox::test
