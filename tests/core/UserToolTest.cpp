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

const QVariantMap asked = one("asked", "1");

struct Endpoint {
    ToolOperation operation;
    const char *method;
    const char *url;
    const char *body = "";
    /// Whether a refusal is handed on too.
    bool always = false;
};

#define OPERATION(name)                                                                                      \
    {                                                                                                        \
#name, [](Success s, Failure f) { return TZUserTool::name(asked, s, f); }                            \
    }

const std::vector<Endpoint> endpoints{
    {{"checkCellWithCell",
      [](Success s, Failure f) { return TZUserTool::checkCellWithCell("13812345678", s, f); }},
     "POST",
     "user/start",
     "cell=13812345678",
     true},
    {OPERATION(verifyCodeWithParam), "POST", "user/verify", "asked=1"},
    {{"uploadPhotoWithParam",
      [](Success s, Failure f) {
          return TZUserTool::uploadPhotoWithParam(
              asked, [] { FAIL(); }, s, f);
      }},
     "POST",
     "image/upload",
     "asked=1"},
    {OPERATION(setNickWithParam), "POST", "user/set_nick", "asked=1"},
    {OPERATION(setRealNameWithParam), "POST", "user/set_real_name", "asked=1", true},
    {OPERATION(bindCardWithParam), "POST", "user/bind_card", "asked=1"},
    {OPERATION(bindCardVerifyWithParam), "POST", "user/verify_bind", "asked=1"},
    {OPERATION(getBankcardListWithParam), "GET", "index/bank_list?asked=1"},
    {OPERATION(setTradePwdWithParam), "POST", "user/set_password", "asked=1"},
    {OPERATION(updatePwdToSendSMSWithParam), "POST", "user/update_password_sms"},
    {OPERATION(updatePwdToVerifyCodeWithParam), "POST", "user/update_verify", "asked=1"},
    {OPERATION(updatePwdToVerifyIDWithParam), "POST", "user/verify_id_card", "asked=1"},
    {OPERATION(updatePwdWithParam), "POST", "user/update_password", "asked=1"},
    {OPERATION(canUpdataPasswordWithParam), "GET", "user/can_update_password?asked=1"},
    {{"getWalletRecordsWithParam",
      [](Success s, Failure f) { return TZUserTool::getWalletRecordsWithParam(one("page", "3"), s, f); }},
     "GET",
     "walletRecords?page=3&page=3"},
    {OPERATION(getCommissionsWithParam), "GET", "commissions?asked=1"},
    {OPERATION(getCommissionsDetailsWithParam), "GET", "commissions?asked=1"},
};

std::vector<ToolOperation> operations()
{
    std::vector<ToolOperation> all;
    for (const Endpoint &endpoint : endpoints)
        all.push_back(endpoint.operation);
    return all;
}

INSTANTIATE_TEST_SUITE_P(TZUserTool, AnswerTable, testing::ValuesIn(operations()), operationName);

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
    for (const auto &[operation, method, url, body, always] : endpoints) {
        SCOPED_TRACE(operation.name);
        successes = 0;
        operation.call(succeeds(), fails());
        const HttpRequest request = http.last().request;
        EXPECT_EQ(request.method, method);
        EXPECT_EQ(request.url, QStringLiteral("https://service.test/") + QLatin1String(url));
        EXPECT_EQ(request.body, body);
        EXPECT_TRUE(overlays.isWaiting());
        http.answer(http.last(), succeeded());
        EXPECT_EQ(successes, 1);
        EXPECT_FALSE(waitingInDone);
        operation.call(succeeds(), fails());
        http.answer(http.last(), refused(QString()));
        EXPECT_EQ(successes, always ? 2 : 1);
        EXPECT_EQ(failures, 0);
    }
}

TEST_F(UserToolTest, SigningInStoresTheCleanedUserAndHandsOnTheAnswerAsReceived)
{
    const QVariantMap answer = succeeded(QVariantMap{{"api_token", "t0ken"},
                                                     {"has_register", true},
                                                     {"cell", "13812345678"},
                                                     {"nick", QVariant::fromValue(nullptr)},
                                                     {"balance", 7}});
    // The alias is set before the user is stored.
    bool storedAtAlias = true;
    const auto watch = [&](const QString &) { storedAtAlias = settings.values.contains(SettingsKeys::user); };
    kits.onAlias = watch;
    TZUserTool::verifyCodeWithParam({}, succeeds(), fails());
    http.answer("user/verify", answer);

    EXPECT_FALSE(storedAtAlias);
    EXPECT_EQ(kits.calls, QStringList({"setAlias t0ken api_token"}));
    const QVariantMap user{
        {"api_token", "t0ken"}, {"has_register", "1"}, {"cell", "13812345678"}, {"nick", ""}};
    EXPECT_EQ(settings.value(SettingsKeys::user).toMap(), user);
    EXPECT_EQ(settings.flushes, 1);
    EXPECT_EQ(last, answer);
    EXPECT_TRUE(Service::isLogin());

    TZUserTool::canUpdataPasswordWithParam({}, succeeds(), fails());
    EXPECT_EQ(http.last().header("api_token"), "t0ken");
}

TEST_F(UserToolTest, ASignInThatWasGivenUpSignsNobodyIn)
{
    const QString verify = "user/verify";
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
    EXPECT_EQ(TZUserModel::stored().api_token, "later");

    TZUserTool::verifyCodeWithParam({}, succeeds(), fails());
    Service::logout();
    http.answer(verify, token("of a user who has left"));
    EXPECT_FALSE(Service::isLogin());
    EXPECT_EQ(kits.calls, QStringList({"setAlias later api_token", "setAlias off_line api_token"}));
    EXPECT_EQ(successes, 1);
}

TEST_F(UserToolTest, AnAnswerWithoutATokenSignsNobodyIn)
{
    for (const QVariant &data : {QVariant(), QVariant(QVariantList{1}), QVariant(one("cell", "1"))}) {
        TZUserTool::verifyCodeWithParam({}, succeeds(), fails());
        http.answer("user/verify", succeeded(data));
        EXPECT_FALSE(Service::isLogin());
    }
    EXPECT_EQ(kits.calls, QStringList());
    TZUserTool::verifyCodeWithParam({}, succeeds(), fails());
    http.answer("user/verify", refused("验证码错误"));
    EXPECT_EQ(successes, 3);
    TZUserTool::verifyCodeWithParam({}, succeeds(), fails());
    http.answer("user/verify", succeeded(one("api_token", QString())));
    EXPECT_TRUE(Service::isLogin()) << "a token that is there, if empty";
    EXPECT_EQ(kits.calls, QStringList());
}

TEST_F(UserToolTest, StoresTheNicknameThatWasSent)
{
    signIn();
    TZUserTool::setNickWithParam(one("nick", "牛牛"), succeeds(), fails());
    http.answer("user/set_nick", succeeded(one("nick", "其他")));
    EXPECT_EQ(TZUserModel::stored().nick, "牛牛");
    EXPECT_EQ(TZUserModel::stored().api_token, "t0ken");
    EXPECT_EQ(settings.flushes, 1);
}

TEST_F(UserToolTest, StoresTheRealNameAfterTheCallbackAndEmptiesItOnARefusal)
{
    signIn();
    TZUserTool::setRealNameWithParam({}, succeeds(), fails());
    http.answer("user/set_real_name", succeeded(one("name", "张三")));
    EXPECT_EQ(nameInDone, "") << "not yet stored in the callback";
    EXPECT_EQ(TZUserModel::stored().name, "张三");

    TZUserTool::setRealNameWithParam({}, succeeds(), fails());
    http.answer("user/set_real_name", refused("不符"));
    EXPECT_EQ(successes, 2);
    EXPECT_EQ(TZUserModel::stored().name, "");
}

TEST_F(UserToolTest, WritesNothingOfAnEarlierUserIntoTheNextOneOrNone)
{
    const QVariant other = one("api_token", "0ther");
    for (const auto &[signedIn, next] : {std::pair(true, other), {true, {}}, {false, {}}}) {
        if (signedIn)
            signIn();
        TZUserTool::setNickWithParam(one("nick", "前任"), succeeds(), fails());
        TZUserTool::setRealNameWithParam({}, succeeds(), fails());
        Service::logout();
        if (next.isValid())
            settings.setValue(SettingsKeys::user, next);
        http.answer("user/set_nick", succeeded());
        http.answer("user/set_real_name", succeeded(one("name", "张三")));
        EXPECT_EQ(settings.value(SettingsKeys::user), next);
    }
}

TEST_F(UserToolTest, KeepsBothCommissionAnswersForOfflineCleaned)
{
    const QVariantMap cleaned = succeeded(one("list", ""));
    TZUserTool::getCommissionsWithParam(one("page", "1"), succeeds(), fails());
    http.answer("commissions", succeeded(one("list", QVariant::fromValue(nullptr))));
    EXPECT_EQ(last, cleaned);
    TZUserTool::getCommissionsDetailsWithParam({}, succeeds(), fails());
    http.answer("commissions", succeeded(1));

    settings.setValue(SettingsKeys::networkStatus, false);
    EXPECT_FALSE(TZUserTool::getCommissionsWithParam({}, succeeds(), fails()));
    EXPECT_EQ(last, cleaned);
    EXPECT_FALSE(TZUserTool::getCommissionsDetailsWithParam({}, succeeds(), fails()));
    EXPECT_EQ(last, succeeded(1));
    EXPECT_EQ(settings.value("commission").toMap(), cleaned);
    EXPECT_EQ(settings.value("commission_detail").toMap(), succeeded(1));
    EXPECT_EQ(http.count(), 2);
}

} // namespace
