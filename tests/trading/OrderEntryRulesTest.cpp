#include "trading/screens/OrderEntryRules.h"

#include "trading/screens/OrderBook.h"

#include <gtest/gtest.h>
#include <limits>

namespace Rules = OrderEntryRules;

TEST(OrderEntryRules, APriceIsDigitsAndAPointWithAtMostTwoDecimals)
{
    for (const QString price : {"", "12", "12.", "12.34", ".", ".5", "0.01", "999999999.99"})
        EXPECT_TRUE(Rules::acceptsPrice(price)) << qPrintable(price);
    for (const QString &price :
         QStringList{"12.345", "1.2.3", "..", "-1", "+1", "1e5", "1,5", " 12", "12 ", "12\n", "１２", "١٢",
                     "🙂", "'", "9999999999.99", QString(10'000, u'9'), "0." + QString(10'000, u'0')})
        EXPECT_FALSE(Rules::acceptsPrice(price)) << qPrintable(price.left(20));
}

TEST(OrderEntryRules, AQuantityIsDigitsOfWhichTheFirstEightStay)
{
    for (const QString text : {"+100", "-100", "1 00", "1.5", "1e2", "１００", "🙂", "'", "100股", "100\n"})
        EXPECT_FALSE(Rules::acceptsQuantity(text)) << qPrintable(text);
    for (const QString &text : QStringList{"", "0", "0100", QString(10'000, u'7')})
        EXPECT_TRUE(Rules::acceptsQuantity(text)) << qPrintable(text.left(20));
    EXPECT_EQ(Rules::cutQuantity("12345678"), "12345678");
    EXPECT_EQ(Rules::cutQuantity("123456789"), "12345678");
}

TEST(OrderEntryRules, MoneyPaysForWholeSharesAndBinaryFractionsCostNone)
{
    const struct {
        double money, price;
        qint64 shares;
    } table[] = {
        {10'000, 12.34, 810},
        {1234, 12.34, 100},
        {1233.99, 12.34, 99},
        {0.29, 0.01, 29},
        {0.57, 0.01, 57},
        {1.15, 0.01, 115},
        {4.35, 0.01, 435},
        {110.7, 36.9, 3},
        {0, 12.34, 0},
        {5, 12.34, 0},
        {-100, 12, -8},
        {1e15, 0.01, 100'000'000'000'000'000},
        {1e300, 0.01, std::numeric_limits<qint64>::max()},
    };
    for (const auto &each : table)
        EXPECT_EQ(Rules::affordableShares(each.money, each.price), each.shares)
            << each.money << " at " << each.price;

    // Every price of a cent up to fifty yuan, paid for exactly and a cent short.
    for (int cents = 1; cents <= 5000; ++cents) {
        for (const int shares : {1, 3, 7, 100, 12'300}) {
            const double price = cents / 100.0;
            const qint64 exact = static_cast<qint64>(cents) * shares;
            ASSERT_EQ(Rules::affordableShares(static_cast<double>(exact) / 100.0, price), shares) << price;
            const qint64 oneShort = cents == 1 ? shares - 1 : (exact - 1) / cents;
            ASSERT_EQ(Rules::affordableShares(static_cast<double>(exact - 1) / 100.0, price), oneShort)
                << price;
        }
    }
}

TEST(OrderEntryRules, AFractionIsWholeLotsRoundedDown)
{
    const struct {
        qint64 total, quarter, half, all;
    } table[] = {{810, 200, 400, 800}, {99, 0, 0, 0},          {100, 0, 0, 100},
                 {199, 0, 0, 100},     {200, 0, 100, 200},     {399, 0, 100, 300},
                 {400, 100, 200, 400}, {1237, 300, 600, 1200}, {0, 0, 0, 0}};
    for (const auto &each : table) {
        EXPECT_EQ(Rules::fractionOf(each.total, Rules::Quarter), each.quarter) << each.total;
        EXPECT_EQ(Rules::fractionOf(each.total, Rules::Half), each.half) << each.total;
        EXPECT_EQ(Rules::fractionOf(each.total, Rules::All), each.all) << each.total;
    }
    EXPECT_EQ(Rules::fractionTitles(), (QStringList{"1/4", "1/2", "全部"}));
}

namespace {
QVariantMap level(const QVariant &price, const QVariant &volume)
{
    return {{"price", price}, {"volume", volume}};
}

/// "买1 12.34 100|…"
QString texts(const QList<TZHandicapModel> &levels)
{
    QStringList all;
    for (const TZHandicapModel &each : levels)
        all.append(QStringList{each.title, each.price, each.volume}.join(u' '));
    return all.join(u'|');
}
} // namespace

TEST(OrderBook, SellLevelsStandInTwoBlocksBuyLevelsInOrder)
{
    QVariantList pankou;
    for (int i = 1; i <= 12; ++i)
        pankou.append(level(i, i * 100));
    EXPECT_EQ(texts(OrderBook::buyLevels(pankou)),
              "买1 1 100|买2 2 200|买3 3 300|买4 4 400|买5 5 500|买6 6 600|买7 7 700|买8 8 800|买9 9 900|"
              "买10 10 1000");
    EXPECT_EQ(texts(OrderBook::sellLevels(pankou)),
              "卖5 5 500|卖4 4 400|卖3 3 300|卖2 2 200|卖1 1 100|卖10 10 1000|卖9 9 900|卖8 8 800|卖7 7 700|"
              "卖6 6 600");
}

TEST(OrderBook, WhatIsNoLevelIsAnEmptyOne)
{
    const QVariant null = QVariant::fromValue(nullptr);
    const QVariantList pankou{level(10.5, 100), null, "text", 7, QVariantList{1}, level(null, QVariantMap())};
    EXPECT_EQ(texts(OrderBook::buyLevels(pankou)),
              "买1 10.5 100|买2  |买3  |买4  |买5  |买6  |买7  |买8  |买9  |买10  ");
    EXPECT_EQ(OrderBook::sellLevels({}).size(), 10);
}
