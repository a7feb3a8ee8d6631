#include "TradingFixture.h"
#include "market/Random.h"

#include <cstdlib>
#include <thread>

namespace sandbox {
namespace {

/** Some users doing anything at any time, over many days. */
class RandomRun : public TradingFixture, public ::testing::WithParamInterface<int> {
protected:
    static constexpr int kUsers = 3;
    static constexpr int kSteps = 1500;

    std::int64_t choose(std::int64_t low, std::int64_t high)
    {
        m_bits = scramble(m_bits);
        return between(m_bits >> 8, low, high);
    }
    UserId anyUser() { return choose(1, kUsers); }
    std::string anyCode() { return m_codes[static_cast<std::size_t>(choose(0, 3))]; }

    void anyOrder()
    {
        const Quote shown = quote(anyCode());
        const Cents around = shown.last != 0 ? shown.last : shown.previousClose;
        const Cents price =
            choose(1, 10) == 1 ? choose(shown.lowerLimit, shown.upperLimit) : around + choose(-6, 6);
        const Shares shares = choose(1, 12) == 1 ? choose(1, 300) : 100 * choose(1, 60);
        const Side side = choose(1, 2) == 1 ? Side::Buy : Side::Sell;
        const auto outcome = attempt(side, shown.code, yuanText(price), std::to_string(shares), anyUser());
        const auto *refusal = std::get_if<Refusal>(&outcome);
        if (refusal && refusal->rule == Rule::Session)
            passUntil(brokerage().nextTradingDay());
    }

    void anyCancel()
    {
        const UserId user = anyUser();
        const auto open = brokerage().openOrders(user);
        if (!open.empty())
            brokerage().cancelOrder(
                user,
                entrustNo(open[static_cast<std::size_t>(choose(0, static_cast<int>(open.size()) - 1))].id));
    }

    /** The same time passes in one step or in many, with a new start in between or without. */
    void wait(Millis duration)
    {
        const Millis end = now() + duration;
        const Millis step = m_interrupted ? std::max<Millis>(duration / 7, 100) : duration;
        while (now() < end)
            passUntil(std::min(now() + step, end));
        if (m_interrupted && duration > kMinute)
            reopen();
    }

    void anything()
    {
        const auto what = choose(1, 100);
        if (what <= 55) {
            anyOrder();
        } else if (what <= 70) {
            anyCancel();
        } else if (what <= 85) {
            wait(choose(1, 40'000));
        } else if (what <= 89) {
            const Quote shown = quote(anyCode());
            brokerage().movePrice(shown.code, choose(shown.lowerLimit, shown.upperLimit));
        } else if (what <= 91) {
            brokerage().sealBoard(anyCode(), static_cast<Brokerage::Seal>(choose(0, 2)));
        } else if (what <= 93) {
            brokerage().deposit(anyUser(), choose(1, 1'000'000), "test");
        } else if (what <= 95) {
            brokerage().withdraw(anyUser(), choose(1, 1'000'000), "test");
        } else if (what <= 97) {
            wait(brokerage().nextTradingDay() + choose(0, 15) * kMinute - now());
        } else {
            wait(choose(1, 300) * kMinute);
        }
    }

    /** Answers all events, as text. */
    std::string run(bool interrupted)
    {
        m_interrupted = interrupted;
        m_bits = static_cast<std::uint64_t>(GetParam());
        m_codes.clear();
        open(GetParam() % 2 == 0, shanghai(kTuesday, 9, 30));
        for (const Board board : {Board::ShanghaiMain, Board::ShenzhenMain, Board::ChiNext, Board::Star})
            m_codes.push_back(stock(board).code);
        for (UserId user = 1; user <= kUsers; ++user) {
            openAccount(100'000'000, user);
            for (const std::string &code : m_codes)
                brokerage().grantShares(user, code, 100 * choose(0, 50) + choose(1, 99),
                                        choose(1000, 5'000'000));
        }
        for (int step = 1; step <= kSteps && !HasFailure(); ++step) {
            anything();
            if (!interrupted && step % 50 == 0)
                expectSoundBooks();
        }
        std::string log;
        Database database(databasePath());
        Statement events(database,
                         "SELECT seq || ' ' || time || ' ' || kind || payload FROM event ORDER BY seq");
        while (events.step())
            log += events.text(0) + "\n";
        return log;
    }

    void expectMuchWasTraded()
    {
        Database database(databasePath());
        Statement deals(database, "SELECT count(*), count(DISTINCT side), count(DISTINCT day) FROM deal");
        ASSERT_TRUE(deals.step());
        EXPECT_GT(deals.integer(0), kSteps / 4);
        EXPECT_EQ(deals.integer(1), 2);
        EXPECT_GT(deals.integer(2), 10);
    }

    bool m_interrupted = false;
    std::uint64_t m_bits = 0;
    std::vector<std::string> m_codes;
};

/** The other program checks the books after every event; see tests/sandbox/books. */
TEST_P(RandomRun, TheBooksAreSoundAndTheSameHoweverOftenItTicksOrStartsAgain)
{
    const std::string log = run(false);
    expectMuchWasTraded();
    EXPECT_EQ(std::system((RECOMPUTE " " + databasePath() + " >&2").c_str()), 0);
    EXPECT_TRUE(run(true) == log) << "another log";
}

class Crowd : public TradingFixture {};

TEST_F(Crowd, ManyThreadsLeaveSoundBooks)
{
    open(false, shanghai(kTuesday, 9, 30));
    const std::string code = stock(Board::ShanghaiMain).code;
    for (UserId user = 1; user <= 4; ++user)
        openAccount(100'000'000, user);
    const std::string price = yuanText(quote(code).asks[2].price);
    std::vector<std::thread> crowd;
    for (UserId user = 1; user <= 4; ++user)
        crowd.emplace_back([&, user] {
            for (int i = 0; i < 40; ++i) {
                brokerage().placeOrder({user, Side::Buy, code, price, "200"});
                for (const Order &order : brokerage().openOrders(user))
                    brokerage().cancelOrder(user, entrustNo(order.id));
                brokerage().quote(code);
                brokerage().accountSummary(user);
                brokerage().tick();
                brokerage().stepClock(200);
            }
        });
    for (std::thread &thread : crowd)
        thread.join();
    std::size_t taken = 0;
    for (UserId user = 1; user <= 4; ++user)
        for (int page = 0; !brokerage().ordersToday(user, page).empty(); ++page)
            taken += brokerage().ordersToday(user, page).size();
    EXPECT_EQ(taken, 160u);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomRun, ::testing::Range(1, 5));

} // namespace
} // namespace sandbox
