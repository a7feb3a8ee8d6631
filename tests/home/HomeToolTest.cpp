#include "core/session/SettingsKeys.h"
#include "home/api/TZHomeTool.h"
#include "home/api/TZMessageTool.h"
#include "tests/support/TestPlatform.h"

namespace {
const QString userIndex = QStringLiteral("userIndex");
const QString loanOverview = QStringLiteral("loanOverview");

QVariantMap figures(const QString &users)
{
    return succeeded(QVariantMap{{QStringLiteral("loanUserAmount"), users}});
}
} // namespace

class HomeToolTest : public PlatformTest {
protected:
    Success note()
    {
        return Success::unowned(
            [this](const Operation &, const QVariantMap &answer) { answers.append(answer); });
    }
    Failure noteFailure()
    {
        return Failure::unowned([this](const Operation &, const RequestError &) { ++failures; });
    }
    void goOffline() { settings.setValue(SettingsKeys::networkStatus, false); }

    QList<QVariantMap> answers;
    int failures = 0;
};

TEST_F(HomeToolTest, OfflineItAnswersAtOnceFromWhatIsStoredAndSendsNothing)
{
    signIn();
    TZHomeTool::getHomeInfoWithParam({}, note(), {});
    http.answer(userIndex, succeeded(QVariantMap{{QStringLiteral("userAccountStatus"), QVariant()}}));
    ASSERT_EQ(answers.size(), 1);
    goOffline();
    EXPECT_FALSE(TZHomeTool::getHomeInfoWithParam({}, note(), {}));
    ASSERT_EQ(answers.size(), 2);
    EXPECT_EQ(answers.at(1), answers.at(0));
    EXPECT_EQ(answers.at(1).value("data").toMap().value("userAccountStatus"), QVariant(QString()));
    EXPECT_EQ(http.count(), 1);
}

TEST_F(HomeToolTest, AGoodAnswerIsHandedOnOnceItIsStoredAndTheIndicatorIsGone)
{
    signIn();
    bool handedOn = false;
    TZHomeTool::getHomeInfoWithParam({}, Success::unowned([&](const Operation &, const QVariantMap &answer) {
                                         handedOn = true;
                                         EXPECT_FALSE(overlays.isWaiting());
                                         EXPECT_EQ(settings.value(QStringLiteral("UserIndex")).toMap(),
                                                   answer);
                                         EXPECT_EQ(settings.flushes, 1);
                                     }),
                                     {});
    EXPECT_TRUE(overlays.isWaiting());
    http.answer(userIndex, succeeded());
    EXPECT_TRUE(handedOn);
}

TEST_F(HomeToolTest, TheWarningIsReadFromTheServiceOnly)
{
    signIn();
    const QString warn = QStringLiteral("warn");
    const QStringList before = settings.allKeys();
    TZHomeTool::getWarnInfoWithParam({}, note(), noteFailure());
    EXPECT_TRUE(http.pending(warn).fields().isEmpty());
    http.answer(warn, succeeded(QVariantMap{{QStringLiteral("level"), 1}}));
    ASSERT_EQ(answers.size(), 1);
    EXPECT_EQ(settings.allKeys(), before);
    TZHomeTool::getWarnInfoWithParam({}, note(), noteFailure());
    http.answer(warn, refused(QString()));
    TZHomeTool::getWarnInfoWithParam({}, note(), noteFailure());
    http.fail(warn, HttpFailure::TimedOut);
    EXPECT_EQ(answers.size(), 1) << "nothing stands for an answer that did not come";
    EXPECT_EQ(failures, 1);
}

TEST_F(HomeToolTest, OfflineWithNothingStoredNobodyIsCalled)
{
    goOffline();
    TZHomeTool::getHomeInfoWithParam({}, note(), noteFailure());
    TZHomeTool::getAddBailWithParam({}, note(), noteFailure());
    TZHomeTool::getWarnInfoWithParam({}, note(), noteFailure());
    EXPECT_TRUE(answers.isEmpty());
    EXPECT_EQ(failures, 0);
    EXPECT_EQ(http.count(), 0);
}

TEST_F(HomeToolTest, TheFirstLaunchOfflineShowsTheBuiltInFiguresLaterOnesTheStored)
{
    goOffline();
    TZHomeTool::getHomeLoanOverviewWithParam({}, note(), {});
    TZHomeTool::getHomeRecentLoansWithParam({}, note(), {});
    ASSERT_EQ(answers.size(), 2);
    EXPECT_GT(answers.at(0).value("data").toMap().value("loanUserAmount").toInt(), 0);
    EXPECT_GE(answers.at(1).value("data").toList().size(), 5);
    EXPECT_FALSE(
        answers.at(1).value("data").toList().constFirst().toMap().value("nick").toString().isEmpty());

    settings.setValue(SettingsKeys::networkStatus, true);
    TZHomeTool::getHomeLoanOverviewWithParam({}, note(), {});
    http.answer(loanOverview, figures(QStringLiteral("77")));
    EXPECT_TRUE(settings.value(QStringLiteral("isFirstLogin")).toBool());
    goOffline();
    TZHomeTool::getHomeLoanOverviewWithParam({}, note(), {});
    EXPECT_EQ(answers.constLast().value("data").toMap().value("loanUserAmount"), QStringLiteral("77"));

    answers.clear();
    TZHomeTool::getHomeRecentLoansWithParam({}, note(), {});
    EXPECT_TRUE(answers.isEmpty()) << "the built-in loans are of the time before";
}

TEST_F(HomeToolTest, ARefusalAnswersFromTheStoredCopyIfThereIsOne)
{
    TZHomeTool::getHomeLoanOverviewWithParam({}, note(), {});
    http.answer(loanOverview, refused(QStringLiteral("维护中")));
    EXPECT_TRUE(answers.isEmpty());
    TZHomeTool::getHomeLoanOverviewWithParam({}, note(), {});
    http.answer(loanOverview, figures(QStringLiteral("5")));
    TZHomeTool::getHomeLoanOverviewWithParam({}, note(), {});
    http.answer(loanOverview, refused(QStringLiteral("维护中")));
    ASSERT_EQ(answers.size(), 2);
    EXPECT_EQ(answers.at(1), answers.at(0));
}

TEST_F(HomeToolTest, AReadThatIsLostAnswersFromTheCopyAndReportsTheFailure)
{
    TZHomeTool::getHomeLoanOverviewWithParam({}, note(), noteFailure());
    http.fail(loanOverview, HttpFailure::TimedOut);
    ASSERT_EQ(answers.size(), 1) << "the built-in figures";
    EXPECT_EQ(failures, 1);
    EXPECT_FALSE(overlays.isWaiting());
}

TEST_F(HomeToolTest, AnAnswerForAUserWhoHasLeftIsDropped)
{
    signIn();
    TZHomeTool::getHomeInfoWithParam({}, note(), {});
    TZMessageTool::getUnReadMessagesSuccess(note(), {});
    settings.remove(SettingsKeys::user);
    http.answer(userIndex, succeeded());
    http.answer(QStringLiteral("msg/count"), succeeded(3));
    EXPECT_TRUE(answers.isEmpty());
    EXPECT_FALSE(settings.values.contains(QStringLiteral("UserIndex")));
    EXPECT_FALSE(settings.values.contains(QStringLiteral("MessageUnReadCount")));
    EXPECT_FALSE(overlays.isWaiting());
}

TEST_F(HomeToolTest, AnAnswerThatALaterOneHasOvertakenIsDropped)
{
    TZHomeTool::getHomeLoanOverviewWithParam({}, note(), {});
    TZHomeTool::getHomeLoanOverviewWithParam({}, note(), {});
    http.answer(http.sent.back(), figures(QStringLiteral("200")));
    http.answer(http.sent.front(), figures(QStringLiteral("100")));
    EXPECT_EQ(answers.size(), 1);
    EXPECT_EQ(settings.value(QStringLiteral("LoanOverview")).toMap(), answers.constFirst());
}

TEST_F(HomeToolTest, TheMarginDemandIsStoredInTwoParts)
{
    TZHomeTool::getAddBailWithParam({}, note(), {});
    http.answer(QStringLiteral("safeMoney2Supplement"),
                succeeded(QVariantMap{
                    {QStringLiteral("totalSafeMoney"), 1200},
                    {QStringLiteral("closeList"),
                     QVariantList{QVariantMap{{QStringLiteral("stockCode"), QStringLiteral("600001")}}}}}));
    ASSERT_EQ(answers.size(), 1);
    const QVariantMap kept = settings.value(QStringLiteral("addBail")).toMap();
    EXPECT_EQ(kept, answers.at(0));
    EXPECT_EQ(kept.value("safeMoneySupplement").toMap().value("totalSafeMoney"), QStringLiteral("1200"));
    EXPECT_EQ(kept.value("safeMoneySupplementAsset").toList().constFirst().toMap().value("stockCode"),
              QStringLiteral("600001"));
}

TEST_F(HomeToolTest, TheUnreadCountFallsBackToTheStoredOne)
{
    TZMessageTool::getUnReadMessagesSuccess(note(), noteFailure());
    http.answer(QStringLiteral("msg/count"), succeeded(3));
    TZMessageTool::getUnReadMessagesSuccess(note(), noteFailure());
    http.fail(QStringLiteral("msg/count"), HttpFailure::Connection);
    TZMessageTool::getUnReadMessagesSuccess(note(), noteFailure());
    http.answer(QStringLiteral("msg/count"), refused(QString()));
    ASSERT_EQ(answers.size(), 3);
    for (const QVariantMap &answer : answers)
        EXPECT_EQ(answer.value("data").toInt(), 3);
    EXPECT_EQ(failures, 1);
}

TEST_F(HomeToolTest, StrangeAnswersBreakNothing)
{
    signIn();
    const QVariant strange[] = {
        QVariant(), 7, QStringLiteral("x"), QVariantList{1, QVariant(), QVariantList()},
        QVariantMap{{QStringLiteral("asset"), 3}, {QStringLiteral("closeList"), true}}};
    for (const QVariant &data : strange) {
        TZHomeTool::getAddBailWithParam({}, note(), {});
        http.answer(QStringLiteral("safeMoney2Supplement"), succeeded(data));
        EXPECT_TRUE(answers.constLast().value("safeMoneySupplementAsset").toList().isEmpty());
    }
}
