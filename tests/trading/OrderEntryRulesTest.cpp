#include "trading/screens/OrderEntryRules.h"

#include "trading/screens/OrderBook.h"

#include <gtest/gtest.h>
#include <limits>

namespace Rules = OrderEntryRules;

TEST(OrderEntryRules, APriceIsDigitsAndAPointWithAtMostTwoDecimals)
{
    const QList<QPair<QString, bool>> table{
        {"", true},
        {"12", true},
        {"12.", true},
        {"12.3", true},
        {"12.34", true},
        {".", true},
        {".5", true},
        {"0.01", true},
        {"999999999.99", true},
        {"12.345", false},
        {"1.2.3", false},
        {"..", false},
        {"-1", false},
        {"+1", false},
        {"1e5", false},
        {"1,5", false},
        {" 12", false},
        {"12 ", false},
        {"１２", false},
        {"١٢", false},
        {"🙂", false},
        {"12\n", false},
        {"9999999999.99", false},
        {QString(10'000, u'9'), false},
        {"0." + QString(10'000, u'0'), false},
    };
    for (const auto &[text, accepted] : table)
        EXPECT_EQ(Rules::acceptsPrice(text), accepted) << qPrintable(text.left(20));
}

TEST(OrderEntryRules, AQuantityIsDigitsOfWhichTheFirstEightStay)
{
    for (const QString text : {"+100", "-100", "1 00", "1.5", "1e2", "１００", "🙂", "100股", "100\n"})
        EXPECT_FALSE(Rules::acceptsQuantity(text)) << qPrintable(text);
    for (const QString &text :
         {QString(), QStringLiteral("0"), QStringLiteral("0100"), QString(10'000, u'7')})
        EXPECT_TRUE(Rules::acceptsQuantity(text)) << qPrintable(text.left(20));

    EXPECT_EQ(Rules::cutQuantity("12345678"), "12345678");
    EXPECT_EQ(Rules::cutQuantity("123456789"), "12345678");
    EXPECT_EQ(Rules::cutQuantity(QString(10'000, u'7')), "77777777");
}

TEST(OrderEntryRules, MoneyPaysForWholeSharesAndBinaryFractionsCostNone)
{
    struct Case {
        double money;
        double price;
        qint64 shares;
    };
    const QList<Case> table{
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
    for (const Case &each : table)
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
    struct Case {
        qint64 total;
        qint64 quarter;
        qint64 half;
        qint64 all;
    };
    const QList<Case> table{
        {810, 200, 400, 800}, {99, 0, 0, 0},          {100, 0, 0, 100},
        {199, 0, 0, 100},     {200, 0, 100, 200},     {399, 0, 100, 300},
        {400, 100, 200, 400}, {1237, 300, 600, 1200}, {0, 0, 0, 0},
    };
    for (const Case &each : table) {
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

QStringList texts(const QList<TZHandicapModel> &levels)
{
    QStringList all;
    for (const TZHandicapModel &each : levels)
        all.append(QStringList{each.title, each.price, each.volume}.join(u' '));
    return all;
}
} // namespace

TEST(OrderBook, SellLevelsStandInTwoBlocksBuyLevelsInOrder)
{
    QVariantList pankou;
    for (int i = 1; i <= 12; ++i)
        pankou.append(level(QString::number(i), i * 100));
    EXPECT_EQ(texts(OrderBook::buyLevels(pankou)),
              (QStringList{"买1 1 100", "买2 2 200", "买3 3 300", "买4 4 400", "买5 5 500", "买6 6 600",
                           "买7 7 700", "买8 8 800", "买9 9 900", "买10 10 1000"}));
    EXPECT_EQ(texts(OrderBook::sellLevels(pankou)),
              (QStringList{"卖5 5 500", "卖4 4 400", "卖3 3 300", "卖2 2 200", "卖1 1 100", "卖10 10 1000",
                           "卖9 9 900", "卖8 8 800", "卖7 7 700", "卖6 6 600"}));
}

TEST(OrderBook, WhatIsNoLevelIsAnEmptyOne)
{
    const QVariantList pankou{
        level(10.5, 100), QVariant::fromValue(nullptr),
        "text",           7,
        QVariantList{1},  QVariantMap{{"price", QVariant::fromValue(nullptr)}, {"volume", QVariantMap()}}};
    EXPECT_EQ(texts(OrderBook::buyLevels(pankou)),
              (QStringList{"买1 10.5 100", "买2  ", "买3  ", "买4  ", "买5  ", "买6  ", "买7  ", "买8  ",
                           "买9  ", "买10  "}));
    EXPECT_EQ(OrderBook::sellLevels({}).size(), 10);
}
