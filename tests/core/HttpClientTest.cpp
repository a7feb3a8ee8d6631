#include "core/net/KRAFHTTPClient.h"
#include "core/net/ToolPolicy.h"
#include "core/session/SettingsKeys.h"
#include "core/util/Service.h"
#include "tests/support/TestPlatform.h"

#include <QFile>
#include <QUrl>

using namespace std::chrono_literals;

namespace {

const QVariantMap param{{"amount", 12.5}, {"名", "a b&c=d+e"}};
const QByteArray encodedParam = "amount=12.5&%E5%90%8D=a%20b%26c%3Dd%2Be";

class HttpClientTest : public PlatformTest {
protected:
    Success succeeds()
    {
        return Success{&overlays, [this](const Operation &, const QVariantMap &answer) {
                           steps.append("done");
                           waitingInDone = overlays.isWaiting();
                           bannersInDone = banners();
                           last = answer;
                       }};
    }
    Failure fails()
    {
        return Failure{&overlays, [this](const Operation &, const RequestError &cause) {
                           steps.append("error");
                           waitingInDone = overlays.isWaiting();
                           bannersInDone = banners();
                           error = cause;
                       }};
    }
    Operation get(const QString &path, const QVariantMap &dict = {})
    {
        return KRAFHTTPClient::get(ToolPolicy::url(path), dict, succeeds(), fails());
    }

    QStringList steps;
    QVariantMap last;
    RequestError error;
    bool waitingInDone = false;
    QStringList bannersInDone;
};

TEST_F(HttpClientTest, PutsParametersWhereEachMethodHasThem)
{
    const QString url = ToolPolicy::url("a/b");
    get("a/b", param);
    EXPECT_EQ(http.last().request.method, "GET");
    EXPECT_EQ(http.last().request.url, url + u'?' + QString::fromLatin1(encodedParam));
    EXPECT_EQ(http.last().request.body, "");

    get("a/b?page=1", {{"page", "1"}});
    EXPECT_EQ(http.last().request.url, url + "?page=1&page=1");
    get("a/b", {{QString(), QString()}});
    EXPECT_EQ(http.last().request.url, url + "?=");
    get("a/b?status=0,1 中");
    EXPECT_EQ(http.last().request.url, url + "?status=0,1 中") << "a path is sent as it is";

    const KRAFHTTPClient::ConstructBody unused = [] { FAIL(); };
    KRAFHTTPClient::post(url, param, succeeds(), fails());
    KRAFHTTPClient::put(url, param, succeeds(), fails());
    KRAFHTTPClient::POST(url, param, unused, succeeds(), fails());
    const QByteArrayList methods{"POST", "PUT", "POST"};
    auto sent = std::next(http.sent.begin(), 4);
    for (const QByteArray &method : methods) {
        EXPECT_EQ(sent->request.method, method);
        EXPECT_EQ(sent->request.url, url);
        EXPECT_EQ(sent->request.body, encodedParam);
        EXPECT_EQ(sent->header("Content-Type"), "application/x-www-form-urlencoded; charset=utf-8");
        ++sent;
    }
    for (const FakeTransport::Sent &request : http.sent)
        EXPECT_EQ(request.request.timeout, 15s);
}

TEST_F(HttpClientTest, SendsAFileAsOnePartBesideTheFields)
{
    QFile file(application.directory.filePath("身份\"证.jpg"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const QByteArray picture("\xff\xd8--\r\n\0binary", 14);
    file.write(picture);
    file.close();
    const QString fileUrl = QUrl::fromLocalFile(file.fileName()).toString();

    KRAFHTTPClient::post(ToolPolicy::url("image/upload"), param, fileUrl, "photo", succeeds(), fails());
    const QByteArray type = http.last().header("Content-Type");
    ASSERT_TRUE(type.startsWith("multipart/form-data; boundary=")) << type.toStdString();
    const QByteArray boundary = "--" + type.mid(type.indexOf('=') + 1);
    const QByteArray expected =
        boundary + "\r\nContent-Disposition: form-data; name=\"amount\"\r\n\r\n12.5\r\n" + boundary +
        "\r\nContent-Disposition: form-data; name=\"名\"\r\n\r\na b&c=d+e\r\n" + boundary +
        "\r\nContent-Disposition: form-data; name=\"photo\"; filename=\"身份%22证.jpg\"\r\n"
        "Content-Type: image/jpeg\r\n\r\n" +
        picture + "\r\n" + boundary + "--\r\n";
    EXPECT_EQ(http.last().request.body, expected);
}

TEST_F(HttpClientTest, FailsWithoutSendingWhenTheFileCannotBeRead)
{
    Service::showWaitingProgressView();
    const Operation operation = KRAFHTTPClient::post(ToolPolicy::url("image/upload"), {},
                                                     "file:///no/such/file", "photo", succeeds(), fails());
    int finished = 0;
    QObject::connect(operation.get(), &RequestOperation::finished, &overlays, [&finished] { ++finished; });
    runLoop.advance(1ms);
    EXPECT_EQ(http.count(), 0);
    EXPECT_EQ(steps, QStringList({"error"}));
    EXPECT_EQ(finished, 1);
    EXPECT_FALSE(overlays.isWaiting());
}

TEST_F(HttpClientTest, ReadsTokenAndHeadersAfreshForEachRequest)
{
    get("x");
    EXPECT_EQ(http.last().request.headers.size(), 2) << "neither token nor list version";
    EXPECT_EQ(http.last().header("version"), "100");
    EXPECT_EQ(http.last().header("platform"), "iOS");

    signIn();
    settings.setValue(SettingsKeys::infoVersion, 42);
    KRAFHTTPClient::put(ToolPolicy::url("x"), {}, {}, {});
    EXPECT_EQ(http.last().header("api_token"), "t0ken");
    EXPECT_EQ(http.last().header("info_version"), "42");
    EXPECT_EQ(http.last().header("platform"), "iOS");

    for (const char *blank : {"", "  \t", "<null>", "(null)"}) {
        settings.setValue(SettingsKeys::user, QVariantMap{{"api_token", QLatin1String(blank)}});
        settings.setValue(SettingsKeys::infoVersion, QLatin1String(blank));
        get("x");
        EXPECT_EQ(http.last().request.headers.size(), 2) << blank;
    }

    settings.setValue(SettingsKeys::user, QVariantMap{{"api_token", "a\r\nX-Evil: 1"}});
    get("x");
    EXPECT_EQ(http.last().header("api_token"), "aX-Evil: 1");
}

TEST_F(HttpClientTest, SendsNothingForAMethodItDoesNotKnow)
{
    for (const QString method : {"get", "DELETE", "", "GET "})
        EXPECT_FALSE(
            KRAFHTTPClient::execute("https://service.test/x", method, {}, {}, {}, {}, succeeds(), fails()));
    EXPECT_EQ(http.count(), 0);
    EXPECT_EQ(steps, QStringList());
}

TEST_F(HttpClientTest, ShowsTheMessageBeforeItHandsTheAnswerOn)
{
    struct Case {
        const char *path;
        const char *body;
        const char *banner;
        bool success;
        bool waiting;
    };
    const Case cases[] = {
        {"x", R"({"success":true,"message":"好"})", "好", true, true},
        {"x", R"({"success":"1","message":"好"})", "好", true, true},
        {"x", R"({"success":"true"})", "", true, true},
        {"x", R"({"success":true,"message":""})", "", true, true},
        {"x", R"({"success":true,"message":null})", "", true, true},
        {"x", R"({"success":false,"message":"坏"})", "坏", false, false},
        {"x", R"({"success":false,"message":""})", "", false, false},
        {"x", R"({"message":"  "})", "", false, false},
        {"info", R"({"success":true,"message":"好"})", "", true, true},
        {"info", R"({"success":false,"message":"坏"})", "", false, false},
        {"info/x", R"({"success":false,"message":"请重新登录"})", "请重新登录", false, false},
    };
    signIn();
    const QVariantMap before = settings.values;
    for (const Case &c : cases) {
        Service::hideAlertView();
        Service::showWaitingProgressView();
        steps.clear();
        get(QLatin1String(c.path));
        http.answerRaw(http.last(), HttpResponse{200, "text/html", c.body});
        EXPECT_EQ(steps, QStringList({"done"})) << c.body;
        EXPECT_EQ(waitingInDone, c.waiting) << c.body;
        if (!c.success) {
            EXPECT_EQ(bannersInDone.join(u'|').toStdString(), c.banner) << c.body;
        }
        runLoop.advance(500ms);
        EXPECT_EQ(banners().join(u'|').toStdString(), c.banner) << c.body;
        if (*c.banner) {
            EXPECT_EQ(overlays.banners()->at(0).success, c.success) << c.body;
        }
    }
    EXPECT_EQ(settings.values, before) << "a stale token is a refusal like any other";
}

TEST_F(HttpClientTest, HandsTheWholeAnswerOnUndigested)
{
    const QVariantMap answer{{"success", 1},
                             {"data", QVariantList{QVariant::fromValue(nullptr), QVariantMap{{"a", 1.5}}}},
                             {"code", "12000"}};
    for (const char *type : {"application/json", "text/json", "text/javascript", "text/html",
                             " Application/JSON ;charset=UTF-8"}) {
        for (const int status : {200, 201, 299}) {
            last.clear();
            get("x");
            http.answerRaw(
                http.last(),
                HttpResponse{status, type, R"({"success":1,"data":[null,{"a":1.50}],"code":"12000"})"});
            EXPECT_EQ(last, answer) << type << status;
        }
    }
}

TEST_F(HttpClientTest, TellsOfAFailureInItsOrder)
{
    Service::showWaitingProgressView();
    const Operation operation = get("x");
    QObject::connect(operation.get(), &RequestOperation::finished, &overlays,
                     [this] { steps.append("finished"); });
    http.fail("x", HttpFailure::TimedOut);
    EXPECT_EQ(steps, QStringList({"error", "finished"}));
    EXPECT_EQ(bannersInDone, QStringList({"加载失败"}));
    EXPECT_FALSE(waitingInDone);
    EXPECT_EQ(error.failure, HttpFailure::TimedOut);

    get("x");
    http.answerRaw(http.last(), HttpResponse{503, "application/json", R"({"success":true})"});
    EXPECT_EQ(error.failure, std::nullopt);
    EXPECT_EQ(error.status, 503);
    runLoop.advance(60s);
    EXPECT_EQ(http.count(), 2) << "nothing is tried again";
}

/// Run in a process of its own, where nothing was sent before.
TEST_F(HttpClientTest, StartsTheReachabilityMonitorOnceBeforeTheFirstRequest)
{
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    EXPECT_EXIT(
        {
            const bool startedEarly = reachability.starts > 0;
            get("x");
            const int afterFirst = reachability.starts;
            get("x");
            std::exit(!startedEarly && afterFirst == 1 && reachability.starts == 1 ? 7 : 1);
        },
        testing::ExitedWithCode(7), "");
}

class ToolPolicyTest : public HttpClientTest {
protected:
    void call(const QVariantMap &dict = {})
    {
        const QString key = "Holding";
        if (!ToolPolicy::answersOffline(key, succeeds()))
            KRAFHTTPClient::get(ToolPolicy::url("holding"), dict, ToolPolicy::cached(key, succeeds()),
                                fails());
    }
};

TEST_F(ToolPolicyTest, AnswersFromTheStoredCopyWithoutANetwork)
{
    const QVariantMap answer = succeeded(QVariantMap{{"name", QVariant::fromValue(nullptr)}});
    const QVariantMap cleaned = succeeded(QVariantMap{{"name", ""}});
    call();
    http.answer("holding", answer);
    EXPECT_EQ(last, answer) << "handed on as received";
    EXPECT_EQ(settings.value("Holding").toMap(), cleaned);
    EXPECT_EQ(settings.flushes, 1);

    settings.setValue(SettingsKeys::networkStatus, false);
    call();
    EXPECT_EQ(last, cleaned);
    EXPECT_EQ(banners(), QStringList({"网络异常"}));
    settings.remove("Holding");
    steps.clear();
    call();
    EXPECT_EQ(steps, QStringList());
    EXPECT_EQ(http.count(), 1);
}

TEST_F(ToolPolicyTest, KeepsNoAnswerThatWasMeantForAnotherUser)
{
    call();
    signIn();
    http.answer("holding", succeeded());
    call();
    Service::logout();
    http.answer("holding", succeeded());
    EXPECT_FALSE(settings.value("Holding").isValid());
    EXPECT_EQ(steps, QStringList());
}

TEST_F(ToolPolicyTest, AnAnswerThatALaterOneHasOvertakenIsDropped)
{
    const QVariantMap nextPage{{"page", 1}};
    for (const QVariantMap &dict : {QVariantMap(), QVariantMap(), QVariantMap(), nextPage})
        call(dict);
    const auto answer = [this](int place) {
        Service::showWaitingProgressView();
        http.answer(*std::next(http.sent.begin(), place), succeeded(place));
        EXPECT_FALSE(overlays.isWaiting());
        return last.value("data").toInt();
    };
    EXPECT_EQ(answer(1), 1);
    EXPECT_EQ(answer(0), 1);
    EXPECT_EQ(settings.value("Holding").toMap(), succeeded(1));
    EXPECT_EQ(answer(3), 3);
    EXPECT_EQ(answer(2), 2) << "another page is another answer";
    EXPECT_EQ(steps.size(), 3);
}

TEST_F(ToolPolicyTest, HidesTheIndicatorAsEachPolicySays)
{
    using Policy = Success (*)(Success);
    const Policy gated = [](Success s) { return ToolPolicy::gated(std::move(s)); };
    const Policy keeping = [](Success s) {
        return ToolPolicy::gated(std::move(s), ToolPolicy::Indicator::Keep);
    };
    const Policy passed = &ToolPolicy::passed;
    const struct {
        Policy policy;
        bool success;
        bool called;
        bool waiting;
    } cases[] = {
        {gated, true, true, false},    {gated, false, false, true}, {keeping, true, true, true},
        {keeping, false, false, true}, {passed, true, true, false}, {passed, false, true, false},
    };
    for (const auto &[policy, success, called, waiting] : cases) {
        steps.clear();
        Service::showWaitingProgressView();
        policy(succeeds())(nullptr, {{"success", success}});
        EXPECT_EQ(!steps.isEmpty(), called);
        EXPECT_EQ(overlays.isWaiting(), waiting);
    }
}

} // namespace
