#pragma once

#include "TemporaryFolder.h"
#include "exchange/Brokerage.h"
#include "ledger/Invariants.h"
#include "market/Calendar.h"
#include "store/Database.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace sandbox {

constexpr Millis shanghai(int daysSince1970, int hour, int minute, int second = 0)
{
    return daysSince1970 * kDay + ((hour - 8) * 60 + minute) * kMinute + second * kSecond;
}
constexpr int kTuesday = 20'410; ///< 18 November 2025

/** A brokerage on a database of its own, whose time moves only by pass(); the books are checked at the end.
 */
class TradingFixture : public ::testing::Test {
protected:
    static constexpr UserId kUser = 1;

    /** Begins anew, with an empty database. */
    void open(bool marketHours, Millis begin)
    {
        m_books.reset();
        m_brokerage.reset();
        m_directory = std::make_unique<test::TemporaryFolder>();
        m_real = begin;
        m_marketHours = marketHours;
        reopen();
    }
    /** As a restart of the program: nothing but the database survives. */
    void reopen()
    {
        m_brokerage.reset();
        m_clock = std::make_unique<Clock>([this] { return m_real; });
        m_brokerage =
            std::make_unique<Brokerage>(BrokerageOptions{databasePath(), 11, m_marketHours}, *m_clock);
    }
    void TearDown() override { expectSoundBooks(); }

    void expectSoundBooks()
    {
        if (!m_books)
            m_books = std::make_unique<Database>(databasePath());
        EXPECT_EQ(brokenInvariants(*m_books), std::vector<std::string>());
    }

    Brokerage &brokerage() { return *m_brokerage; }
    std::string databasePath() const { return (m_directory->path() / "sandbox.sqlite").string(); }
    void pass(Millis duration)
    {
        m_real += duration;
        m_brokerage->tick();
    }
    void passUntil(Millis time) { pass(time - m_real); }
    Millis now() const { return m_real; }

    /** The first company of a board that is traded and not under special treatment. */
    const Stock &stock(Board board)
    {
        for (const Stock &candidate : m_brokerage->stocks().all())
            if (candidate.board == board && !candidate.suspended && !candidate.specialTreatment)
                return candidate;
        throw std::runtime_error("no such company");
    }
    Quote quote(const std::string &code) { return m_brokerage->quote(code).value(); }

    void openAccount(Cents cash, UserId user = kUser)
    {
        m_brokerage->createAccount(user);
        ASSERT_TRUE(std::holds_alternative<Cents>(m_brokerage->deposit(user, cash, "test")));
    }
    Outcome<Order> attempt(Side side, const std::string &code, const std::string &price,
                           const std::string &shares, UserId user = kUser)
    {
        return m_brokerage->placeOrder({user, side, code, price, shares});
    }
    Order place(Side side, const std::string &code, Cents price, Shares shares, UserId user = kUser)
    {
        auto outcome = attempt(side, code, yuanText(price), std::to_string(shares), user);
        if (const auto *refusal = std::get_if<Refusal>(&outcome)) {
            ADD_FAILURE() << refusal->message;
            return {};
        }
        return std::get<Order>(outcome);
    }
    Order orderNow(const Order &order) { return m_brokerage->order(order.user, order.id).value(); }
    Holding holding(const std::string &code, UserId user = kUser)
    {
        for (const Holding &held : m_brokerage->holdings(user))
            if (held.stockCode == code)
                return held;
        return {};
    }

private:
    std::unique_ptr<test::TemporaryFolder> m_directory;
    Millis m_real = 0;
    bool m_marketHours = false;
    std::unique_ptr<Clock> m_clock;
    std::unique_ptr<Brokerage> m_brokerage;
    std::unique_ptr<Database> m_books; ///< a connection of its own, to look at what was committed
};

} // namespace sandbox
