#include "core/util/Text.h"

#include "core/session/TZUserModel.h"
#include "core/util/Amount.h"
#include "core/util/Colour.h"
#include "core/util/Service.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

const QVariant null = QVariant::fromValue(nullptr);
constexpr qint64 most = std::numeric_limits<qint64>::max();
constexpr qint64 least = std::numeric_limits<qint64>::min();

QVariant text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

TEST(Text, WritesValuesAsThePlatformDoes)
{
    const std::pair<QVariant, const char *> cases[] = {
        {true, "1"},
        {false, "0"},
        {-7, "-7"},
        {0.29, "0.29"},
        {-0.0, "0"},
        {1e15, "1000000000000000"},
        {most, "9223372036854775807"},
        {1e300, "1e+300"},
        {0.1 + 0.2, "0.30000000000000004"},
        {text(" a "), " a "},
    };
    for (const auto &[value, written] : cases)
        EXPECT_EQ(textForm(value).toStdString(), written);
    for (const QVariant &nothing :
         {null, QVariant(), QVariant(QVariantMap{{"a", 1}}), QVariant(QVariantList{1})})
        EXPECT_EQ(textForm(nothing), "");
}

TEST(Text, ReadsLeadingNumbers)
{
    struct Case {
        QVariant value;
        double number;
        qint64 whole;
    };
    const Case cases[] = {
        {text("  12.34元"), 12.34, 12},
        {text("-3.9"), -3.9, -3},
        {text("+.5"), 0.5, 0},
        {text("1e3"), 1000, 1},
        {text("1,234"), 1234, 1234},
        {text("-12,345,678.50元"), -12345678.5, -12345678},
        {text("1234,567"), 1234, 1234},
        {text("1e999"), std::numeric_limits<double>::max(), 1},
        {text("99999999999999999999"), 99999999999999999999.0, most},
        {text("-99999999999999999999"), -99999999999999999999.0, least},
        {text("9223372036854775807"), 9223372036854775807.0, most},
        {-12.9, -12.9, -12},
        {1e300, 1e300, most},
        {INFINITY, std::numeric_limits<double>::max(), most},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(doubleValue(c.value), c.number) << textForm(c.value).toStdString();
        EXPECT_EQ(integerValue(c.value), c.whole) << textForm(c.value).toStdString();
    }
    for (const QVariant &one : {text("1e"), text("1e+x"), text("1,2345"), text("1,,234"), QVariant(true)}) {
        EXPECT_EQ(doubleValue(one), 1) << textForm(one).toStdString();
        EXPECT_EQ(integerValue(one), 1) << textForm(one).toStdString();
    }
    for (const QVariant &nothing :
         {text(""), text("."), text("-"), text(",123"), text("0x1A"), text("nan"), text("inf"), text("１２"),
          text("abc1"), null, QVariant(), QVariant(std::nan("")), QVariant(QVariantMap()),
          QVariant(QVariantList{7})}) {
        EXPECT_EQ(doubleValue(nothing), 0) << textForm(nothing).toStdString();
        EXPECT_EQ(integerValue(nothing), 0) << textForm(nothing).toStdString();
    }
}

TEST(Text, ReadsTruth)
{
    for (const QVariant &yes :
         {QVariant(true), QVariant(1), QVariant(-1), QVariant(0.5), text("1"), text("true"), text("YES"),
          text("y"), text("T"), text(" \t+0007"), text("-9"), text("1false")})
        EXPECT_TRUE(boolValue(yes)) << textForm(yes).toStdString();
    for (const QVariant &no :
         {QVariant(), null, QVariant(false), QVariant(0), QVariant(0.0), text(""), text("0"), text("false"),
          text("no"), text("00"), text(" a1"), QVariant(QVariantList{1}), QVariant(QVariantMap{{"a", 1}})})
        EXPECT_FALSE(boolValue(no)) << textForm(no).toStdString();
}

TEST(Text, FillsModelsByNameAndKeepsWhatIsAbsentApartFromWhatIsEmpty)
{
    const auto user = fromDictionary<TZUserModel>(QVariantMap{{"api_token", ""},
                                                              {"cell", 13812345678LL},
                                                              {"has_register", true},
                                                              {"name", QVariantMap{}},
                                                              {"unknown", 1}});
    EXPECT_EQ(user.cell, "13812345678");
    EXPECT_EQ(user.has_register, "1");
    const QVariantMap back = toDictionary(user);
    EXPECT_EQ(back.keys(), QStringList({"api_token", "cell", "has_register", "name"}));
    EXPECT_TRUE(toDictionary(fromDictionary<TZUserModel>(text("no dictionary"))).isEmpty());
    EXPECT_EQ(fromArray<TZUserModel>(QVariantList{1, null, QVariantMap()}).size(), 1);
    EXPECT_TRUE(fromArray<TZUserModel>(QVariantMap()).isEmpty());
}

TEST(Amount, GroupsAndRoundsHalfToEvenInTheDigitsThatAreSeen)
{
    const std::pair<QVariant, const char *> cases[] = {
        {1234567.8, "1,234,567.80"},
        {0.125, "0.12"},
        {0.375, "0.38"},
        {2.665, "2.66"},
        {text("1.005"), "1.00"},
        {text("1.0050001"), "1.01"},
        {0.015, "0.02"},
        {999.995, "1,000.00"},
        {-1234.5, "-1,234.50"},
        {-0.006, "-0.01"},
        {100, "100.00"},
        {1e21, "1,000,000,000,000,000,000,000.00"},
        {true, "1.00"},
    };
    for (const auto &[value, written] : cases)
        EXPECT_EQ(Service::formatAmountNumber(value).toStdString(), written);
    for (const QVariant &nothing :
         {text(""), text("abc"), null, QVariant(QVariantList()), QVariant(std::nan("")), QVariant(0.005),
          QVariant(-0.001), QVariant(1e-300)})
        EXPECT_EQ(Service::formatAmountNumber(nothing), "0.00") << textForm(nothing).toStdString();
    EXPECT_EQ(Service::formatAmountNumber(1e308).size(), 309 + 102 + 3);
}

TEST(Amount, CutsOnButtonsInSinglePrecisionAndRoundsOnLabels)
{
    struct Case {
        QVariant amount;
        const char *button;
        const char *label;
    };
    const Case cases[] = {
        {text("12.349"), "12.34", "12.35"},
        {text("1234.567"), "1,234.56", "1,234.57"},
        {0.29, "0.29", "0.29"},
        // What a float holds: 1234567.875, times a hundred rounded to a multiple of 8.
        {text("1234567.89"), "1,234,567.84", "1,234,567.89"},
        {text("-12.341"), "-12.35", "-12.34"},
        {text("0.125"), "0.12", "0.12"},
        {text("0.375"), "0.37", "0.38"},
        {text("junk"), "0.00", "0.00"},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(buttonAmount(c.amount).toStdString(), c.button);
        EXPECT_EQ(labelAmount(c.amount).toStdString(), c.label);
    }
    for (const QVariant &empty : {text(""), text("  "), null, QVariant()})
        EXPECT_EQ(buttonAmount(empty) + labelAmount(empty) + labelAmountWithYuan(empty), "");
    EXPECT_EQ(buttonAmount(1e300), labelAmount(1e300));
    EXPECT_EQ(buttonAmountWithYuan(text("12.349")), "12.34元");
    EXPECT_EQ(labelAmountWithYuan(text("12.349")), "12.35元");
}

TEST(Amount, SetsTheLastThreeCharactersApartAsTheUnit)
{
    const auto parts = [](const char *whole) {
        const UnitText text = setAttributeWithText(QString::fromUtf8(whole));
        return (text.figure + u'|' + text.unit).toStdString();
    };
    EXPECT_EQ(parts("总资产（元）"), "总资产|（元）");
    EXPECT_EQ(parts("（元）"), "|（元）");
    EXPECT_EQ(parts("元"), "|元");
    EXPECT_EQ(parts(""), "|");
}

TEST(Amount, ClearsSpacesButKeepsLineBreaks)
{
    EXPECT_EQ(clearSpaceAndWrap("\t 1 2\n3 4\t"), "12\n34");
    EXPECT_EQ(clearSpaceAndWrap("\n"), "\n");
    EXPECT_EQ(clearSpaceAndWrap(QString()), QString());
}

TEST(ColourTest, ReadsSixDigitsAndNothingElse)
{
    const Colour blue{0x27 / 255.0, 0x87 / 255.0, 0xda / 255.0, 1};
    for (const char *good : {"2787DA", "#2787da", "0x2787da", " 0X2787DA\n", "0x#2787DA"})
        EXPECT_EQ(KRColor_hexValue(QString::fromLatin1(good)), blue) << good;
    for (const char *bad :
         {"", "#FFF", "2787D", "2787DA0", "2787DA00", "GGGGGG", "#0x2787DA", "0x2787", "０１２３４５"})
        EXPECT_EQ(colorWithHexString(QString::fromUtf8(bad)), Colour()) << bad;
    EXPECT_EQ(colorWithHexString("2787DA", 0.25).alpha, 0.25);
}

} // namespace
