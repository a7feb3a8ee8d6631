#include "identity/SmsCodes.h"

#include "identity/Resets.h"
#include "identity/Rules.h"
#include "identity/Users.h"

#include <gtest/gtest.h>
#include <set>

namespace sandbox::identity {
namespace {

struct Codes {
    Millis now = 1'000'000'000;
    std::vector<Sms> sent;
    SmsCodes codes{":memory:", [this] { return now; }, [this](const Sms &sms) { sent.push_back(sms); }};
};

TEST(SmsCodes, OutstandingCodesNeverRepeat)
{
    Codes fixture;
    std::set<std::string> seen;
    for (int i = 0; i < 2000; ++i)
        fixture.codes.send("139" + std::to_string(10'000'000 + i), purpose::signIn);
    for (const Sms &sms : fixture.sent)
        EXPECT_TRUE(isSixDigits(sms.code) && seen.insert(sms.code).second);
}

TEST(SmsCodes, ACodeServesOnceForItsPurposeForFiveMinutesAndUntilTheNextOne)
{
    Codes fixture;
    const auto sent = [&] {
        fixture.codes.send("13900000001", purpose::signIn);
        return fixture.sent.back().code;
    };
    const std::string replaced = sent();
    const std::string code = sent();
    EXPECT_EQ(fixture.codes.take(replaced, purpose::signIn), std::nullopt);
    EXPECT_EQ(fixture.codes.take(code, purpose::registration), std::nullopt);
    fixture.now += 5 * 60 * 1000 - 1;
    EXPECT_EQ(fixture.codes.take(code, purpose::signIn), "13900000001");
    EXPECT_EQ(fixture.codes.take(code, purpose::signIn), std::nullopt);
    const std::string late = sent();
    fixture.now += 5 * 60 * 1000;
    EXPECT_FALSE(fixture.codes.inbox(1)[0].open);
    EXPECT_EQ(fixture.codes.take(late, purpose::signIn), std::nullopt);
}

TEST(SmsCodes, GuessingStopsForTheRestOfTheMinute)
{
    Codes fixture;
    fixture.codes.send("13900000001", purpose::signIn);
    const std::string right = fixture.sent[0].code;
    const std::string wrong = right == "000000" ? "000001" : "000000";
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(fixture.codes.take(wrong, purpose::signIn), std::nullopt);
    EXPECT_EQ(fixture.codes.take(right, purpose::signIn), std::nullopt);
    fixture.now += 60'000;
    EXPECT_EQ(fixture.codes.take(right, purpose::signIn), "13900000001");
}

TEST(Users, FiveWrongTradePasswordsLockItForFifteenMinutes)
{
    Millis now = 1'000'000'000;
    Users users(":memory:", [&now] { return now; });
    const UserId user = users.create("13900000001", "").id;
    users.setTradePassword(user, "123456");
    for (int left = 4; left > 0; --left) {
        EXPECT_EQ(users.checkTradePassword(user, "000000"), PasswordCheck::Wrong);
        EXPECT_EQ(users.triesLeft(user), left);
    }
    EXPECT_EQ(users.checkTradePassword(user, "000000"), PasswordCheck::Locked);
    EXPECT_EQ(users.checkTradePassword(user, "123456"), PasswordCheck::Locked);
    now += 15 * 60 * 1000;
    EXPECT_EQ(users.checkTradePassword(user, "000000"), PasswordCheck::Wrong);
    EXPECT_EQ(users.triesLeft(user), 4);
    EXPECT_EQ(users.checkTradePassword(user, "123456"), PasswordCheck::Right);
    EXPECT_EQ(users.triesLeft(user), 5);
}

TEST(Resets, AResetEndsAQuarterOfAnHourAfterItsLastStep)
{
    Millis now = 1'000'000'000;
    Resets resets(":memory:", [&now] { return now; });
    resets.setStep("t0ken", ResetStep::CodeVerified);
    now += 14 * 60 * 1000;
    EXPECT_EQ(resets.step("t0ken"), ResetStep::CodeVerified);
    EXPECT_EQ(resets.step("other"), ResetStep::None);
    resets.setStep("t0ken", ResetStep::IdentityVerified);
    now += 14 * 60 * 1000;
    EXPECT_EQ(resets.step("t0ken"), ResetStep::IdentityVerified);
    now += 60 * 1000;
    EXPECT_EQ(resets.step("t0ken"), ResetStep::None);
}

TEST(Users, OnlyTheTwentyNewestTokensAreValid)
{
    Users users(":memory:", [] { return Millis{1}; });
    const UserId user = users.create("13900000001", "").id;
    const std::string oldest = users.issueToken(user);
    std::string newest;
    for (int i = 0; i < 20; ++i)
        newest = users.issueToken(user);
    EXPECT_FALSE(users.byToken(oldest));
    EXPECT_EQ(users.byToken(newest)->id, user);
    EXPECT_FALSE(users.byToken(""));
}

TEST(Rules, WhatIsValidAndWhatIsNot)
{
    for (const char *text : {"13800138000", "14512345678", "17012345678", "18912345678"})
        EXPECT_TRUE(isCell(text)) << text;
    for (const char *text : {"14612345678", "17112345678", "17912345678", "12812345678", "1380013800",
                             "138001380000", "1380013800a", "１３８００１３８０００", ""})
        EXPECT_FALSE(isCell(text)) << text;
    const std::string twenty = "一二三四五六七八九十一二三四五六七八九十";
    for (const std::string &text : {std::string("张三"), twenty})
        EXPECT_TRUE(isRealName(text)) << text;
    for (const std::string &text :
         {std::string("张"), std::string("张san"), std::string("张三☀"), twenty + "一"})
        EXPECT_FALSE(isRealName(text)) << text;
    for (const char *text : {"110101900307123", "110101199003071234", "11010119900307123x"})
        EXPECT_TRUE(isIdentityNumber(text)) << text;
    for (const char *text : {"11010119900307123Y", "1101011990030712"})
        EXPECT_FALSE(isIdentityNumber(text)) << text;
}

} // namespace
} // namespace sandbox::identity
