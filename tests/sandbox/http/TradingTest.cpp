#include "RunningSandbox.h"

namespace sandbox::test {
namespace {

/// Cents of a text such as "12.30".
Cents cents(const Json &text)
{
    return parseYuan(text.get<std::string>()).value();
}

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

    Json entrust(const std::string &id)
    {
        const Json rows = client.get("entrustsToday").at("data");
        for (const Json &row : rows)
            if (row.at("id") == id)
                return row;
        return {};
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

TEST_F(Trading, ANewcomerBuysAtTheAskAndTheBooksShowIt)
{
    const std::string stock = anyStock();
    const std::string ask = quote(stock).at("sellPankou").at(0).at("price");
    const Cents before = cents(client.get("buyPage").at("data"));

    EXPECT_EQ(code(order("Buy", stock, ask, 100)), "12000");
    EXPECT_EQ(code(order("Buy", stock, ask, 100, "000000")), "12002");
    const Json bought = order("Buy", stock, ask, 100, "123456");
    ASSERT_TRUE(succeeded(bought)) << bought;
    const Json filled = entrust(bought.at("data").at("id"));
    EXPECT_EQ(filled.at("status"), "8");
    EXPECT_EQ(filled.at("businessShares"), "100");
    EXPECT_EQ(filled.at("type"), "1");

    const Json deal = client.get("detailsToday?page=0").at("data").at(0);
    EXPECT_EQ(deal.at("entrustId"), bought.at("data").at("id"));
    EXPECT_EQ(deal.at("entrutsId"), deal.at("entrustId"));
    EXPECT_EQ(deal.at("stampTax"), "0.00");
    const Cents paid =
        cents(deal.at("businessMoney")) + cents(deal.at("commission")) + cents(deal.at("transferFee"));
    EXPECT_EQ(cents(client.get("buyPage").at("data")), before - paid);

    bool held = false;
    const Json holdings = client.get("holding").at("data");
    for (const Json &row : holdings)
        if (row.at("stockCode") == stock) {
            held = true;
            EXPECT_EQ(row.at("availableShares"), "0") << "bought today, not to be sold today";
        }
    EXPECT_TRUE(held);
    EXPECT_FALSE(succeeded(order("Sell", stock, ask, 100)));
}

TEST_F(Trading, OneRightPasswordServesTheSessionAndAnotherSignInNeedsItsOwn)
{
    const std::string stock = anyStock();
    const std::string low = quote(stock).at("lowerLimit");
    ASSERT_TRUE(succeeded(order("Buy", stock, low, 100, "123456")));
    EXPECT_TRUE(succeeded(order("Buy", stock, low, 100)));
    client = running.signedIn();
    EXPECT_EQ(code(order("Buy", stock, low, 100)), "12000");
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
