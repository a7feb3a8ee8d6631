#include "ledger/Books.h"

#include "TradingFixture.h"

#include <sys/wait.h>
#include <thread>

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

TEST_F(BooksFixture, ManyThreadsLoseNoOrder)
{
    const std::string code = stock(Board::ShanghaiMain).code;
    const std::string price = yuanText(quote(code).asks[2].price);
    constexpr UserId kUsers[] = {2, 3, 4, 5};
    std::vector<std::thread> crowd;
    for (const UserId user : kUsers) {
        openAccount(100'000'000, user);
        crowd.emplace_back([&, user] {
            for (int i = 0; i < 40; ++i) {
                brokerage().placeOrder({user, Side::Buy, code, price, "200"});
                for (const Order &order : brokerage().openOrders(user))
                    brokerage().cancelOrder(user, entrustNo(order.id));
                brokerage().accountSummary(user);
                brokerage().tick();
                brokerage().stepClock(200);
            }
        });
    }
    for (std::thread &thread : crowd)
        thread.join();
    std::size_t taken = 0;
    for (const UserId user : kUsers)
        for (int page = 0; !brokerage().ordersToday(user, page).empty(); ++page)
            taken += brokerage().ordersToday(user, page).size();
    EXPECT_EQ(taken, 160u);
}

} // namespace
} // namespace sandbox
