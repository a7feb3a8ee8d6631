#include "core/session/SettingsKeys.h"
#include "core/session/TZUserModel.h"
#include "core/session/TZUserTool.h"
#include "core/util/Text.h"
#include "tests/support/AnswerTable.h"

namespace {

QVariantMap one(const char *key, const QVariant &value)
{
    return {{QLatin1String(key), value}};
}

const QVariantMap asked = one("asked", QStringLiteral("1"));

#define OPERATION(name)                                                                                      \
    {                                                                                                        \
#name, [](Success s, Failure f) { return TZUserTool::name(asked, s, f); }                            \
    }

const std::vector<ToolOperation> operations{
    {"checkCellWithCell",
     [](Success s, Failure f) { return TZUserTool::checkCellWithCell(QStringLiteral("13812345678"), s, f); }},
    OPERATION(verifyCodeWithParam),
    {"uploadPhotoWithParam",
     [](Success s, Failure f) {
         return TZUserTool::uploadPhotoWithParam(
             asked, [] { FAIL(); }, s, f);
     }},
    OPERATION(setNickWithParam),
    OPERATION(setRealNameWithParam),
    OPERATION(bindCardWithParam),
    OPERATION(bindCardVerifyWithParam),
    OPERATION(getBankcardListWithParam),
    OPERATION(setTradePwdWithParam),
    OPERATION(updatePwdToSendSMSWithParam),
    OPERATION(updatePwdToVerifyCodeWithParam),
    OPERATION(updatePwdToVerifyIDWithParam),
    OPERATION(updatePwdWithParam),
    OPERATION(canUpdataPasswordWithParam),
    {"getWalletRecordsWithParam",
     [](Success s, Failure f) {
         return TZUserTool::getWalletRecordsWithParam(one("page", QStringLiteral("3")), s, f);
     }},
    OPERATION(getCommissionsWithParam),
    OPERATION(getCommissionsDetailsWithParam),
};

INSTANTIATE_TEST_SUITE_P(TZUserTool, AnswerTable, testing::ValuesIn(operations), operationName);

class UserToolTest : public PlatformTest {
protected:
    Success succeeds()
    {
        return Success{&overlays, [this](const Operation &, const QVariantMap &answer) {
                           ++successes;
                           last = answer;
                           nameInDone = TZUserModel::stored().name;
                           waitingInDone = overlays.isWaiting();
                       }};
    }
    Failure fails()
    {
        return Failure{&overlays, [this](const Operation &, const RequestError &) { ++failures; }};
    }

    int successes = 0;
    int failures = 0;
    QVariantMap last;
    QString nameInDone;
    bool waitingInDone = false;
};

TEST_F(UserToolTest, CallsEachEndpointAsItIsMeantToBe)
{
    struct Case {
        const char *name;
        const char *method;
        const char *url;
        const char *body;
        bool always;
    };
    const Case cases[] = {
        {"checkCellWithCell", "POST", "user/start", "cell=13812345678", true},
        {"verifyCodeWithParam", "POST", "user/verify", "asked=1", false},
        {"uploadPhotoWithParam", "POST", "image/upload", "asked=1", false},
        {"setNickWithParam", "POST", "user/set_nick", "asked=1", false},
        {"setRealNameWithParam", "POST", "user/set_real_name", "asked=1", true},
        {"bindCardWithParam", "POST", "user/bind_card", "asked=1", false},
        {"bindCardVerifyWithParam", "POST", "user/verify_bind", "asked=1", false},
        {"getBankcardListWithParam", "GET", "index/bank_list?asked=1", "", false},
        {"setTradePwdWithParam", "POST", "user/set_password", "asked=1", false},
        {"updatePwdToSendSMSWithParam", "POST", "user/update_password_sms", "", false},
        {"updatePwdToVerifyCodeWithParam", "POST", "user/update_verify", "asked=1", false},
        {"updatePwdToVerifyIDWithParam", "POST", "user/verify_id_card", "asked=1", false},
        {"updatePwdWithParam", "POST", "user/update_password", "asked=1", false},
        {"canUpdataPasswordWithParam", "GET", "user/can_update_password?asked=1", "", false},
        {"getWalletRecordsWithParam", "GET", "walletRecords?page=3&page=3", "", false},
        {"getCommissionsWithParam", "GET", "commissions?asked=1", "", false},
        {"getCommissionsDetailsWithParam", "GET", "commissions?asked=1", "", false},
    };
    ASSERT_EQ(std::size(cases), operations.size());
    for (size_t i = 0; i < operations.size(); ++i) {
        const Case &c = cases[i];
        ASSERT_EQ(operations[i].name, c.name);
        operations[i].call(succeeds(), fails());
        const HttpRequest request = http.last().request;
        EXPECT_EQ(request.method, c.method) << c.name;
        EXPECT_EQ(request.url, QStringLiteral("https://service.test/") + QLatin1String(c.url)) << c.name;
        EXPECT_EQ(request.body, c.body) << c.name;
        EXPECT_TRUE(overlays.isWaiting()) << c.name;

        successes = failures = 0;
        http.answer(http.last(), succeeded());
        EXPECT_EQ(successes, 1) << c.name;
        EXPECT_FALSE(waitingInDone) << c.name;
        operations[i].call(succeeds(), fails());
        http.answer(http.last(), refused(QString()));
        EXPECT_EQ(successes, c.always ? 2 : 1) << c.name;
        EXPECT_EQ(failures, 0) << c.name;
        operations[i].call(succeeds(), fails());
        http.answerRaw(http.last(), HttpFailure::Connection);
        EXPECT_EQ(failures, 1) << c.name;
    }
}

TEST_F(UserToolTest, SigningInStoresTheCleanedUserAndHandsOnTheAnswerAsReceived)
{
    const QVariantMap answer = succeeded(QVariantMap{{QStringLiteral("api_token"), QStringLiteral("t0ken")},
                                                     {QStringLiteral("has_register"), true},
                                                     {QStringLiteral("cell"), QStringLiteral("13812345678")},
                                                     {QStringLiteral("nick"), QVariant::fromValue(nullptr)},
                                                     {QStringLiteral("balance"), 7}});
    // The alias is set before the user is stored.
    bool storedAtAlias = true;
    const auto watch = [&](const QString &) { storedAtAlias = settings.values.contains(SettingsKeys::user); };
    kits.onAlias = watch;
    TZUserTool::verifyCodeWithParam({}, succeeds(), fails());
    http.answer(QStringLiteral("user/verify"), answer);

    EXPECT_FALSE(storedAtAlias);
    EXPECT_EQ(kits.calls, QStringList({QStringLiteral("setAlias t0ken api_token")}));
    const QVariantMap user{{QStringLiteral("api_token"), QStringLiteral("t0ken")},
                           {QStringLiteral("has_register"), QStringLiteral("1")},
                           {QStringLiteral("cell"), QStringLiteral("13812345678")},
                           {QStringLiteral("nick"), QStringLiteral("")}};
    EXPECT_EQ(settings.value(SettingsKeys::user).toMap(), user);
    EXPECT_EQ(settings.flushes, 1);
    EXPECT_EQ(last, answer);
    EXPECT_TRUE(Service::isLogin());

    TZUserTool::canUpdataPasswordWithParam({}, succeeds(), fails());
    EXPECT_EQ(http.last().header("api_token"), "t0ken");
}

TEST_F(UserToolTest, ASignInThatWasGivenUpSignsNobodyIn)
{
    const QString verify = QStringLiteral("user/verify");
    const auto token = [](const char *text) { return succeeded(one("api_token", QLatin1String(text))); };
    auto screen = std::make_unique<QObject>();
    TZUserTool::verifyCodeWithParam({}, Success{screen.get(), [](auto &, auto &) { FAIL(); }}, fails());
    screen.reset();
    http.answer(verify, token("of a screen that is gone"));
    EXPECT_FALSE(Service::isLogin());
    EXPECT_FALSE(overlays.isWaiting());

    TZUserTool::verifyCodeWithParam({}, succeeds(), fails());
    TZUserTool::verifyCodeWithParam({}, succeeds(), fails());
    http.answer(*std::next(http.sent.begin(), 1), token("earlier"));
    EXPECT_FALSE(Service::isLogin());
    http.answer(http.last(), token("later"));
    EXPECT_EQ(TZUserModel::stored().api_token, QStringLiteral("later"));

    TZUserTool::verifyCodeWithParam({}, succeeds(), fails());
    Service::logout();
    http.answer(verify, token("of a user who has left"));
    EXPECT_FALSE(Service::isLogin());
    EXPECT_EQ(kits.calls, QStringList({QStringLiteral("setAlias later api_token"),
                                       QStringLiteral("setAlias off_line api_token")}));
    EXPECT_EQ(successes, 1);
}

TEST_F(UserToolTest, AnAnswerWithoutATokenSignsNobodyIn)
{
    for (const QVariant &data :
         {QVariant(), QVariant(QVariantList{1}), QVariant(one("cell", QStringLiteral("1")))}) {
        TZUserTool::verifyCodeWithParam({}, succeeds(), fails());
        http.answer(QStringLiteral("user/verify"), succeeded(data));
        EXPECT_FALSE(Service::isLogin());
    }
    EXPECT_EQ(kits.calls, QStringList());
    TZUserTool::verifyCodeWithParam({}, succeeds(), fails());
    http.answer(QStringLiteral("user/verify"), refused(QStringLiteral("验证码错误")));
    EXPECT_EQ(successes, 3);
    TZUserTool::verifyCodeWithParam({}, succeeds(), fails());
    http.answer(QStringLiteral("user/verify"), succeeded(one("api_token", QString())));
    EXPECT_TRUE(Service::isLogin()) << "a token that is there, if empty";
    EXPECT_EQ(kits.calls, QStringList());
}

TEST_F(UserToolTest, StoresTheNicknameThatWasSent)
{
    signIn();
    const QVariantMap param = one("nick", QStringLiteral("牛牛"));
    TZUserTool::setNickWithParam(param, succeeds(), fails());
    http.answer(QStringLiteral("user/set_nick"), succeeded(one("nick", QStringLiteral("其他"))));
    EXPECT_EQ(TZUserModel::stored().nick, QStringLiteral("牛牛"));
    EXPECT_EQ(TZUserModel::stored().api_token, QStringLiteral("t0ken"));
    EXPECT_EQ(settings.flushes, 1);

    settings.remove(SettingsKeys::user);
    TZUserTool::setNickWithParam(param, succeeds(), fails());
    http.answer(QStringLiteral("user/set_nick"), succeeded());
    EXPECT_FALSE(settings.value(SettingsKeys::user).isValid());
    EXPECT_EQ(successes, 2);
}

TEST_F(UserToolTest, StoresTheRealNameAfterTheCallbackAndEmptiesItOnARefusal)
{
    signIn();
    TZUserTool::setRealNameWithParam({}, succeeds(), fails());
    http.answer(QStringLiteral("user/set_real_name"), succeeded(one("name", QStringLiteral("张三"))));
    EXPECT_EQ(nameInDone, QString()) << "not yet stored in the callback";
    EXPECT_EQ(TZUserModel::stored().name, QStringLiteral("张三"));

    TZUserTool::setRealNameWithParam({}, succeeds(), fails());
    http.answer(QStringLiteral("user/set_real_name"), refused(QStringLiteral("不符")));
    EXPECT_EQ(successes, 2);
    EXPECT_EQ(TZUserModel::stored().name, QString());

    settings.remove(SettingsKeys::user);
    TZUserTool::setRealNameWithParam({}, succeeds(), fails());
    http.answer(QStringLiteral("user/set_real_name"), succeeded(one("name", QStringLiteral("张三"))));
    EXPECT_FALSE(settings.value(SettingsKeys::user).isValid());
}

TEST_F(UserToolTest, WritesNothingOfAnEarlierUserIntoTheNextOne)
{
    signIn();
    TZUserTool::setNickWithParam(one("nick", QStringLiteral("前任")), succeeds(), fails());
    TZUserTool::setRealNameWithParam({}, succeeds(), fails());
    Service::logout();
    settings.setValue(SettingsKeys::user, one("api_token", QStringLiteral("0ther")));
    http.answer(QStringLiteral("user/set_nick"), succeeded());
    http.answer(QStringLiteral("user/set_real_name"), succeeded(one("name", QStringLiteral("张三"))));
    EXPECT_EQ(settings.value(SettingsKeys::user).toMap(), one("api_token", QStringLiteral("0ther")));
}

TEST_F(UserToolTest, KeepsBothCommissionAnswersForOfflineCleaned)
{
    const QVariantMap answer = succeeded(one("list", QVariant::fromValue(nullptr)));
    const QVariantMap cleaned = succeeded(one("list", QStringLiteral("")));
    TZUserTool::getCommissionsWithParam(one("page", QStringLiteral("1")), succeeds(), fails());
    http.answer(QStringLiteral("commissions"), answer);
    EXPECT_EQ(last, cleaned);
    EXPECT_EQ(settings.value(QStringLiteral("commission")).toMap(), cleaned);
    TZUserTool::getCommissionsDetailsWithParam({}, succeeds(), fails());
    http.answer(QStringLiteral("commissions"), succeeded(1));
    EXPECT_EQ(settings.value(QStringLiteral("commission_detail")).toMap(), succeeded(1));

    settings.setValue(SettingsKeys::networkStatus, false);
    last.clear();
    EXPECT_EQ(TZUserTool::getCommissionsWithParam({}, succeeds(), fails()), nullptr);
    EXPECT_EQ(last, cleaned);
    EXPECT_EQ(TZUserTool::getCommissionsDetailsWithParam({}, succeeds(), fails()), nullptr);
    EXPECT_EQ(last, succeeded(1));
    settings.remove(QStringLiteral("commission"));
    successes = 0;
    TZUserTool::getCommissionsWithParam({}, succeeds(), fails());
    EXPECT_EQ(successes + failures, 0);
    EXPECT_EQ(http.count(), 2);
    EXPECT_EQ(banners(), QStringList({QStringLiteral("网络异常")}));
    EXPECT_FALSE(overlays.isWaiting());
}

} // namespace
