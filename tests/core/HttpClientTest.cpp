#include "core/net/KRAFHTTPClient.h"
#include "core/net/ToolPolicy.h"
#include "core/session/SettingsKeys.h"
#include "core/util/Service.h"
#include "tests/support/TestPlatform.h"

#include <QFile>
#include <QUrl>

using namespace std::chrono_literals;

namespace {

const QVariantMap param{{QStringLiteral("amount"), 12.5},
                        {QStringLiteral("名"), QStringLiteral("a b&c=d+e")}};
const QByteArray encodedParam = "amount=12.5&%E5%90%8D=a%20b%26c%3Dd%2Be";

class HttpClientTest : public PlatformTest {
protected:
    Success succeeds()
    {
        return Success{&overlays, [this](const Operation &, const QVariantMap &answer) {
                           steps.append(QStringLiteral("done"));
                           waitingInDone = overlays.isWaiting();
                           bannersInDone = banners();
                           last = answer;
                       }};
    }
    Failure fails()
    {
        return Failure{&overlays, [this](const Operation &, const RequestError &cause) {
                           steps.append(QStringLiteral("error"));
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
    const QString url = ToolPolicy::url(QStringLiteral("a/b"));
    get(QStringLiteral("a/b"), param);
    EXPECT_EQ(http.last().request.method, "GET");
    EXPECT_EQ(http.last().request.url, url + u'?' + QString::fromLatin1(encodedParam));
    EXPECT_EQ(http.last().request.body, "");

    get(QStringLiteral("a/b?page=1"), {{QStringLiteral("page"), QStringLiteral("1")}});
    EXPECT_EQ(http.last().request.url, url + QStringLiteral("?page=1&page=1"));
    get(QStringLiteral("a/b"), {{QString(), QString()}});
    EXPECT_EQ(http.last().request.url, url + QStringLiteral("?="));
    get(QStringLiteral("a/b?status=0,1 中"));
    EXPECT_EQ(http.last().request.url, url + QStringLiteral("?status=0,1 中")) << "a path is sent as it is";

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
    QFile file(application.directory.filePath(QStringLiteral("身份\"证.jpg")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const QByteArray picture("\xff\xd8--\r\n\0binary", 14);
    file.write(picture);
    file.close();
    const QString fileUrl = QUrl::fromLocalFile(file.fileName()).toString();

    KRAFHTTPClient::post(ToolPolicy::url(QStringLiteral("image/upload")), param, fileUrl,
                         QStringLiteral("photo"), succeeds(), fails());
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
    const Operation operation = KRAFHTTPClient::post(ToolPolicy::url(QStringLiteral("image/upload")), {},
                                                     QStringLiteral("file:///no/such/file"),
                                                     QStringLiteral("photo"), succeeds(), fails());
    int finished = 0;
    QObject::connect(operation.get(), &RequestOperation::finished, &overlays, [&finished] { ++finished; });
    runLoop.advance(1ms);
    EXPECT_EQ(http.count(), 0);
    EXPECT_EQ(steps, QStringList({QStringLiteral("error")}));
    EXPECT_EQ(finished, 1);
    EXPECT_FALSE(overlays.isWaiting());
}

TEST_F(HttpClientTest, ReadsTokenAndHeadersAfreshForEachRequest)
{
    get(QStringLiteral("x"));
    EXPECT_EQ(http.last().request.headers.size(), 2) << "neither token nor list version";
    EXPECT_EQ(http.last().header("version"), "100");
    EXPECT_EQ(http.last().header("platform"), "iOS");

    signIn();
    settings.setValue(SettingsKeys::infoVersion, 42);
    KRAFHTTPClient::put(ToolPolicy::url(QStringLiteral("x")), {}, {}, {});
    EXPECT_EQ(http.last().header("api_token"), "t0ken");
    EXPECT_EQ(http.last().header("info_version"), "42");
    EXPECT_EQ(http.last().header("platform"), "iOS");

    for (const char *blank : {"", "  \t", "<null>", "(null)"}) {
        settings.setValue(SettingsKeys::user,
                          QVariantMap{{QStringLiteral("api_token"), QLatin1String(blank)}});
        settings.setValue(SettingsKeys::infoVersion, QLatin1String(blank));
        get(QStringLiteral("x"));
        EXPECT_EQ(http.last().request.headers.size(), 2) << blank;
    }

    settings.setValue(SettingsKeys::user,
                      QVariantMap{{QStringLiteral("api_token"), QStringLiteral("a\r\nX-Evil: 1")}});
    get(QStringLiteral("x"));
    EXPECT_EQ(http.last().header("api_token"), "aX-Evil: 1");
}

TEST_F(HttpClientTest, SendsNothingForAMethodItDoesNotKnow)
{
    for (const char *method : {"get", "Get", "DELETE", "", "GET "}) {
        EXPECT_EQ(KRAFHTTPClient::execute(ToolPolicy::url(QStringLiteral("x")), QLatin1String(method), {}, {},
                                          {}, {}, succeeds(), fails()),
                  nullptr);
    }
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
        {"info/x", R"({"success":false,"message":"坏"})", "坏", false, false},
    };
    for (const Case &c : cases) {
        Service::hideAlertView();
        Service::showWaitingProgressView();
        steps.clear();
        get(QLatin1String(c.path));
        http.answerRaw(http.last(), HttpResponse{200, "text/html", c.body});
        EXPECT_EQ(steps, QStringList({QStringLiteral("done")})) << c.body;
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
}

TEST_F(HttpClientTest, HandsTheWholeAnswerOnUndigested)
{
    for (const char *type : {"application/json", "text/json", "text/javascript", "text/html",
                             " Application/JSON ;charset=UTF-8"}) {
        for (const int status : {200, 201, 299}) {
            last.clear();
            get(QStringLiteral("x"));
            http.answerRaw(
                http.last(),
                HttpResponse{status, type, R"({"success":1,"data":[null,{"a":1.50}],"code":"12000"})"});
            EXPECT_EQ(last.value(QStringLiteral("code")), QStringLiteral("12000")) << type << status;
            EXPECT_EQ(last.value(QStringLiteral("data")),
                      QVariant(QVariantList{QVariant::fromValue(nullptr),
                                            QVariantMap{{QStringLiteral("a"), 1.5}}}));
        }
    }
}

TEST_F(HttpClientTest, TellsOfAFailureInItsOrder)
{
    Service::showWaitingProgressView();
    const Operation operation = get(QStringLiteral("x"));
    QObject::connect(operation.get(), &RequestOperation::finished, &overlays,
                     [this] { steps.append(QStringLiteral("finished")); });
    http.fail(QStringLiteral("x"), HttpFailure::TimedOut);
    EXPECT_EQ(steps, QStringList({QStringLiteral("error"), QStringLiteral("finished")}));
    EXPECT_EQ(bannersInDone, QStringList({QStringLiteral("加载失败")}));
    EXPECT_FALSE(waitingInDone);
    EXPECT_EQ(error.failure, HttpFailure::TimedOut);

    get(QStringLiteral("x"));
    http.answerRaw(http.last(), HttpResponse{503, "application/json", R"({"success":true})"});
    EXPECT_EQ(error.failure, std::nullopt);
    EXPECT_EQ(error.status, 503);
    runLoop.advance(60s);
    EXPECT_EQ(http.count(), 2) << "nothing is tried again";
}

TEST_F(HttpClientTest, AnswersInAnyOrderAndHidesTheOneIndicatorWithTheFirst)
{
    Service::showWaitingProgressView();
    get(QStringLiteral("first"));
    get(QStringLiteral("second"));
    EXPECT_EQ(http.count(), 2);
    http.answer(QStringLiteral("second"), refused(QString()));
    EXPECT_FALSE(overlays.isWaiting());
    http.answer(QStringLiteral("first"), succeeded(1));
    EXPECT_EQ(last.value(QStringLiteral("data")), QVariant(1));
}

TEST_F(HttpClientTest, AStaleTokenIsARefusalLikeAnyOther)
{
    signIn();
    const QVariantMap before = settings.values;
    get(QStringLiteral("x"));
    http.answer(QStringLiteral("x"), refused(QStringLiteral("请重新登录")));
    EXPECT_EQ(banners(), QStringList({QStringLiteral("请重新登录")}));
    EXPECT_EQ(settings.values, before);
    EXPECT_EQ(kits.calls, QStringList());
}

TEST_F(HttpClientTest, TakesAnAnswerOfTenMegabytes)
{
    QByteArray body = R"({"success":true,"data":[{"c":"600000")";
    while (body.size() < 10 * 1024 * 1024)
        body += R"(},{"c":"600000","n":"浦发银行","s":"PFYH")";
    body += "}]}";
    get(QStringLiteral("x"));
    http.answerRaw(http.last(), HttpResponse{200, "application/json", body});
    EXPECT_GT(last.value(QStringLiteral("data")).toList().size(), 200'000);
}

/// Run in a process of its own, where nothing was sent before.
TEST_F(HttpClientTest, StartsTheReachabilityMonitorOnceBeforeTheFirstRequest)
{
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    EXPECT_EXIT(
        {
            const bool startedEarly = reachability.starts > 0;
            get(QStringLiteral("x"));
            const int afterFirst = reachability.starts;
            get(QStringLiteral("x"));
            std::exit(!startedEarly && afterFirst == 1 && reachability.starts == 1 ? 7 : 1);
        },
        testing::ExitedWithCode(7), "");
}

class ToolPolicyTest : public HttpClientTest {
protected:
    void call(const QVariantMap &dict = {})
    {
        const QString key = QStringLiteral("Holding");
        if (!ToolPolicy::answersOffline(key, succeeds()))
            KRAFHTTPClient::get(ToolPolicy::url(QStringLiteral("holding")), dict,
                                ToolPolicy::cached(key, succeeds()), fails());
    }
};

TEST_F(ToolPolicyTest, AnswersFromTheStoredCopyWithoutANetwork)
{
    const QVariantMap answer = succeeded(QVariantMap{{QStringLiteral("name"), QVariant::fromValue(nullptr)}});
    const QVariantMap cleaned = succeeded(QVariantMap{{QStringLiteral("name"), QStringLiteral("")}});
    call();
    http.answer(QStringLiteral("holding"), answer);
    EXPECT_EQ(last, answer) << "handed on as received";
    EXPECT_EQ(settings.value(QStringLiteral("Holding")).toMap(), cleaned);
    EXPECT_EQ(settings.flushes, 1);

    settings.setValue(SettingsKeys::networkStatus, false);
    call();
    EXPECT_EQ(last, cleaned);
    EXPECT_EQ(banners(), QStringList({QStringLiteral("网络异常")}));
    settings.remove(QStringLiteral("Holding"));
    steps.clear();
    call();
    EXPECT_EQ(steps, QStringList());
    EXPECT_EQ(http.count(), 1);
}

TEST_F(ToolPolicyTest, KeepsNoAnswerThatWasMeantForAnotherUser)
{
    call();
    signIn();
    http.answer(QStringLiteral("holding"), succeeded());
    call();
    Service::logout();
    http.answer(QStringLiteral("holding"), succeeded());
    EXPECT_FALSE(settings.value(QStringLiteral("Holding")).isValid());
    EXPECT_EQ(steps, QStringList());
}

TEST_F(ToolPolicyTest, AnAnswerThatALaterOneHasOvertakenIsDropped)
{
    const QVariantMap nextPage{{QStringLiteral("page"), 1}};
    for (const QVariantMap &dict : {QVariantMap(), QVariantMap(), QVariantMap(), nextPage})
        call(dict);
    const auto answer = [this](int place) {
        Service::showWaitingProgressView();
        http.answer(*std::next(http.sent.begin(), place), succeeded(place));
        EXPECT_FALSE(overlays.isWaiting());
        return last.value(QStringLiteral("data")).toInt();
    };
    EXPECT_EQ(answer(1), 1);
    EXPECT_EQ(answer(0), 1);
    EXPECT_EQ(settings.value(QStringLiteral("Holding")).toMap(), succeeded(1));
    EXPECT_EQ(answer(3), 3);
    EXPECT_EQ(answer(2), 2) << "another page is another answer";
    EXPECT_EQ(steps.size(), 3);
}

TEST_F(ToolPolicyTest, HidesTheIndicatorAsEachPolicySays)
{
    struct Case {
        std::function<Success(Success)> policy;
        bool success;
        bool called;
        bool waiting;
    };
    const auto gated = [](Success s) { return ToolPolicy::gated(std::move(s)); };
    const auto keeping = [](Success s) {
        return ToolPolicy::gated(std::move(s), ToolPolicy::Indicator::Keep);
    };
    const auto passed = [](Success s) { return ToolPolicy::passed(std::move(s)); };
    const Case cases[] = {
        {gated, true, true, false},    {gated, false, false, true}, {keeping, true, true, true},
        {keeping, false, false, true}, {passed, true, true, false}, {passed, false, true, false},
    };
    for (const Case &c : cases) {
        steps.clear();
        Service::showWaitingProgressView();
        c.policy(succeeds())(nullptr, {{QStringLiteral("success"), c.success}});
        EXPECT_EQ(!steps.isEmpty(), c.called);
        EXPECT_EQ(overlays.isWaiting(), c.waiting);
    }
}

} // namespace
