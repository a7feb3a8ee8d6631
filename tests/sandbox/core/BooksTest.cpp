#include "ledger/Books.h"

#include "TradingFixture.h"

#include <sys/wait.h>

namespace sandbox {
namespace {

class BooksFixture : public TradingFixture {
protected:
    void SetUp() override
    {
        open(false, shanghai(kTuesday, 10, 0));
        brokerage().createDemoAccount(kUser);
    }
    /** Every row of every table that follows from the events, as text. */
    static std::string dump(Database &database)
    {
        std::string text;
        for (const char *table : {"account", "position", "entrust", "deal", "depth_used", "price_move"}) {
            Statement columns(database,
                              "SELECT group_concat(name, ' || ''|'' || ') FROM pragma_table_info(?)");
            columns.bind(table);
            columns.step();
            Statement rows(database,
                           "SELECT " + columns.text(0) + " FROM " + std::string(table) + " ORDER BY 1");
            text += std::string(table) + "\n";
            while (rows.step())
                text += rows.text(0) + "\n";
        }
        return text;
    }
    void tradeABit()
    {
        const std::string code = brokerage().holdings(kUser).front().stockCode;
        const Quote shown = quote(code);
        place(Side::Buy, code, shown.asks[1].price, 600);
        place(Side::Buy, code, shown.lowerLimit, 100);
        place(Side::Sell, code, shown.upperLimit, 400);
        place(Side::Sell, code, shown.bids[1].price, 300);
        brokerage().cancelOrder(kUser, entrustNo(2));
        brokerage().movePrice(code, shown.last + 7);
        pass(10 * kSecond);
    }
};

TEST_F(BooksFixture, TheDemoAccountIsReadyToTrade)
{
    EXPECT_EQ(brokerage().usableMoney(kUser), 200'000'00);
    const auto holdings = brokerage().holdings(kUser);
    ASSERT_EQ(holdings.size(), 4u);
    int odd = 0;
    for (const Holding &held : holdings) {
        EXPECT_EQ(held.availableShares, held.shares);
        odd += held.shares % 100 != 0;
    }
    EXPECT_EQ(odd, 1);
    brokerage().createDemoAccount(kUser);
    EXPECT_EQ(brokerage().holdings(kUser).size(), 4u) << "only once";
}

TEST_F(BooksFixture, ASaleTakesItsPartOfTheCostAndLeavesTheCostPerShare)
{
    const std::string code = stock(Board::ShenzhenMain).code;
    const UserId user = 2;
    openAccount(1'000'000, user);
    brokerage().grantShares(user, code, 1000, 1'000'000); // ten yuan each
    const Order sale = place(Side::Sell, code, quote(code).bids[5].price, 400, user);
    ASSERT_EQ(sale.filled, 400);
    const Holding held = holding(code, user);
    EXPECT_EQ(held.cost, 600'000);
    EXPECT_EQ(held.costPerShare, "10.000");
    const Cents income = sale.filledMoney - sale.commission - sale.stampTax - sale.transferFee;
    EXPECT_EQ(held.accumulatedSellIncome, income);
    EXPECT_EQ(held.profitCostPerShare, ratioText(1'000'000 - income, 60'000, 3));
}

TEST_F(BooksFixture, TheClockIsRememberedOverARestart)
{
    brokerage().freezeClock();
    brokerage().stepClock(5 * kMinute);
    const Millis frozen = brokerage().now();
    EXPECT_EQ(frozen, shanghai(kTuesday, 10, 5));
    reopen();
    pass(kMinute);
    EXPECT_EQ(brokerage().now(), frozen);
    brokerage().setClockSpeedPercent(6000);
    pass(kSecond);
    EXPECT_EQ(brokerage().now(), frozen + kMinute);
    EXPECT_FALSE(brokerage().jumpClock(frozen));
}

TEST_F(BooksFixture, AnotherSeedIsRefused)
{
    Clock clock;
    EXPECT_THROW(Brokerage({databasePath(), 12, false}, clock), std::runtime_error);
    EXPECT_THROW(Brokerage({databasePath(), 11, true}, clock), std::runtime_error);
}

TEST_F(BooksFixture, TheEventsAloneGiveTheBooksAgain)
{
    tradeABit();
    passUntil(brokerage().nextTradingDay() + kMinute);
    tradeABit();
    Database original(databasePath());
    Database copy(":memory:");
    Books(copy).replay(original);
    EXPECT_EQ(dump(copy), dump(original));
    EXPECT_NE(dump(copy).find("entrust\n1|"), std::string::npos) << "there is something to compare";
}

TEST_F(BooksFixture, AKilledProcessLosesNothingItAnswered)
{
    const std::string code = brokerage().holdings(kUser).front().stockCode;
    for (int round = 0; round < 10; ++round) {
        int answers[2];
        ASSERT_EQ(pipe(answers), 0);
        const pid_t child = fork();
        if (child == 0) {
            Clock clock([this] { return now(); });
            Brokerage mine({databasePath(), 11, false}, clock);
            const std::string price = yuanText(mine.quote(code)->lowerLimit);
            for (;;) {
                const auto outcome = mine.placeOrder({kUser, Side::Buy, code, price, "100"});
                const auto *order = std::get_if<Order>(&outcome);
                const std::int64_t id = order ? order->id : 0;
                if (write(answers[1], &id, sizeof id) < 0 || id == 0)
                    _exit(0);
                mine.cancelOrder(kUser, entrustNo(id));
                mine.rejectOrder(entrustNo(id), "");
            }
        }
        ::close(answers[1]);
        std::int64_t last = 0;
        std::int64_t id = 0;
        const auto answered = [&] { return read(answers[0], &id, sizeof id) == sizeof id; };
        for (int count = 0; count <= 2 * round && answered(); ++count)
            last = id;
        usleep(static_cast<useconds_t>(170 * round)); // somewhere in the middle of the next ones
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        while (answered())
            last = id;
        ::close(answers[0]);
        reopen();
        EXPECT_TRUE(brokerage().order(kUser, last).has_value()) << last;
        expectSoundBooks();
    }
}

} // namespace
} // namespace sandbox
