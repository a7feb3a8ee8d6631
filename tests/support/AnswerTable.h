#pragma once

#include "core/net/KRAFHTTPClient.h"
#include "core/util/Service.h"
#include "tests/support/BrokenAnswers.h"
#include "tests/support/TestPlatform.h"

/// Feeds every kind of answer a service can give to every operation of a tool. One file of a test program
/// includes this and lists its operations:
///
///     INSTANTIATE_TEST_SUITE_P(TZHomeTool, AnswerTable, testing::ValuesIn<ToolOperation>({
///         {"getHomeInfo", [](Success s, Failure f) { return TZHomeTool::getHomeInfoWithParam({}, s, f); }},
///     }), operationName);
struct ToolOperation {
    std::string name;
    std::function<Operation(Success, Failure)> call;
};

inline void PrintTo(const ToolOperation &operation, std::ostream *out)
{
    *out << operation.name;
}

inline std::string operationName(const testing::TestParamInfo<ToolOperation> &operation)
{
    return operation.param.name;
}

class AnswerTable : public PlatformTest, public testing::WithParamInterface<ToolOperation> {
protected:
    struct Heard {
        int successes = 0;
        int failures = 0;
        int finished = 0;
        bool finishedLast = true;
    };

    /// Calls the operation with the indicator shown, answers it, and tells what was heard.
    Heard hear(const HttpOutcome &outcome)
    {
        Heard heard;
        Service::hideAlertView();
        Service::showWaitingProgressView();
        const auto note = [&heard](int &count) {
            ++count;
            heard.finishedLast = heard.finishedLast && heard.finished == 0;
        };
        const Operation operation = GetParam().call(
            Success{&overlays, [&](const Operation &, const QVariantMap &) { note(heard.successes); }},
            Failure{&overlays, [&](const Operation &, const RequestError &) { note(heard.failures); }});
        EXPECT_TRUE(operation);
        if (!operation)
            return heard;
        QObject::connect(operation.get(), &RequestOperation::finished, &overlays,
                         [&heard] { ++heard.finished; });
        http.answerRaw(http.last(), outcome);
        runLoop.advance(std::chrono::milliseconds(600));
        settle();
        return heard;
    }
};

TEST_P(AnswerTable, TellsTheUserAndHidesTheIndicatorWhateverIsWrongWithAnAnswer)
{
    signIn();
    for (const UnusableAnswer &answer : unusableAnswers()) {
        const Heard heard = hear(answer.outcome);
        EXPECT_EQ(banners().join(u'|'), answer.told) << answer.what;
        EXPECT_FALSE(overlays.isWaiting()) << answer.what;
        EXPECT_EQ(heard.finished, 1) << answer.what;
        EXPECT_TRUE(heard.finishedLast) << answer.what;
        const bool undecoded = answer.told == QStringLiteral("加载失败");
        EXPECT_EQ(heard.failures, undecoded ? 1 : 0) << answer.what;
    }
}

TEST_P(AnswerTable, SurvivesASuccessOfAnyShape)
{
    signIn();
    for (const QByteArray &body : misshapenSuccesses()) {
        const Heard heard = hear(HttpResponse{200, "application/json", body});
        EXPECT_EQ(heard.finished, 1) << body.left(80).toStdString();
        EXPECT_EQ(heard.failures, 0) << body.left(80).toStdString();
    }
}

TEST_P(AnswerTable, StaysSilentOnceItsScreenIsGone)
{
    for (const HttpOutcome &outcome :
         {HttpOutcome(HttpResponse{200, "application/json", R"({"success":true,"data":{}})"}),
          HttpOutcome(HttpFailure::TimedOut)}) {
        auto screen = std::make_unique<QObject>();
        GetParam().call(Success{screen.get(), [](const Operation &, const QVariantMap &) { FAIL(); }},
                        Failure{screen.get(), [](const Operation &, const RequestError &) { FAIL(); }});
        screen.reset();
        http.answerRaw(http.last(), outcome);
    }
}
