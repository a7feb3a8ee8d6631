#include "core/session/SettingsKeys.h"
#include "home/api/TZHomeTool.h"
#include "home/api/TZMessageTool.h"
#include "tests/support/AnswerTable.h"

namespace {
const QString userIndex = "userIndex";
const QString loanOverview = "loanOverview";

QVariantMap figures(const QString &users)
{
    return succeeded(QVariantMap{{"loanUserAmount", users}});
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

TEST_F(HomeToolTest, AnAnswerIsStoredCleanedThenHandedOnAndServesWithoutANetwork)
{
    signIn();
    const Success stored = Success::unowned([&](const Operation &, const QVariantMap &answer) {
        answers.append(answer);
        EXPECT_FALSE(overlays.isWaiting());
        EXPECT_EQ(settings.value("UserIndex").toMap(), answer);
        EXPECT_EQ(settings.flushes, 1);
    });
    TZHomeTool::getHomeInfoWithParam({}, stored, {});
    EXPECT_TRUE(overlays.isWaiting());
    http.answer(userIndex, succeeded(QVariantMap{{"userAccountStatus", QVariant()}}));
    goOffline();
    EXPECT_FALSE(TZHomeTool::getHomeInfoWithParam({}, note(), {}));
    const QVariantMap cleaned = succeeded(QVariantMap{{"userAccountStatus", ""}});
    EXPECT_EQ(answers, (QList<QVariantMap>{cleaned, cleaned}));
    EXPECT_EQ(http.count(), 1);
}

TEST_F(HomeToolTest, TheWarningIsReadFromTheServiceOnly)
{
    signIn();
    const QString warn = "warn";
    const QStringList before = settings.allKeys();
    const auto read = [&] { TZHomeTool::getWarnInfoWithParam({}, note(), noteFailure()); };
    read();
    EXPECT_TRUE(http.pending(warn).fields().isEmpty());
    http.answer(warn, succeeded(QVariantMap{{"level", 1}}));
    EXPECT_EQ(settings.allKeys(), before);
    read();
    http.answer(warn, refused(QString()));
    read();
    http.fail(warn, HttpFailure::TimedOut);
    goOffline();
    read();
    EXPECT_EQ(answers.size(), 1) << "nothing stands for an answer that did not come";
    EXPECT_EQ(failures, 1);
    EXPECT_EQ(http.count(), 3);
}

TEST_F(HomeToolTest, TheFirstLaunchOfflineShowsTheBuiltInFiguresLaterOnesTheStored)
{
    goOffline();
    TZHomeTool::getHomeLoanOverviewWithParam({}, note(), {});
    TZHomeTool::getHomeRecentLoansWithParam({}, note(), {});
    ASSERT_EQ(answers.size(), 2);
    EXPECT_GT(answers.at(0).value("data").toMap().value("loanUserAmount").toInt(), 0);
    const QVariantList loans = answers.at(1).value("data").toList();
    EXPECT_GE(loans.size(), 5);
    EXPECT_NE(loans.value(0).toMap().value("nick"), QVariant());

    settings.setValue(SettingsKeys::networkStatus, true);
    TZHomeTool::getHomeLoanOverviewWithParam({}, note(), {});
    http.answer(loanOverview, figures("77"));
    goOffline();
    TZHomeTool::getHomeLoanOverviewWithParam({}, note(), {});
    EXPECT_EQ(answers.constLast(), figures("77"));
    TZHomeTool::getHomeRecentLoansWithParam({}, note(), {});
    EXPECT_EQ(answers.size(), 4) << "the built-in loans are of the time before";
}

TEST_F(HomeToolTest, ARefusalOrALostReadIsAnsweredFromTheCopyIfThereIsOne)
{
    const auto read = [&] { TZHomeTool::getHomeLoanOverviewWithParam({}, note(), noteFailure()); };
    read();
    http.answer(loanOverview, refused("维护中"));
    EXPECT_TRUE(answers.isEmpty());
    read();
    http.fail(loanOverview, HttpFailure::TimedOut);
    EXPECT_EQ(answers.size(), 1) << "the built-in figures";
    EXPECT_FALSE(overlays.isWaiting());
    read();
    http.answer(loanOverview, figures("5"));
    read();
    http.answer(loanOverview, refused("维护中"));
    EXPECT_EQ(answers.size(), 3);
    EXPECT_EQ(answers.constLast(), figures("5"));
    EXPECT_EQ(failures, 1);

    answers.clear();
    const QString count = "msg/count";
    TZMessageTool::getUnReadMessagesSuccess(note(), noteFailure());
    http.answer(count, succeeded(3));
    TZMessageTool::getUnReadMessagesSuccess(note(), noteFailure());
    http.fail(count, HttpFailure::Connection);
    TZMessageTool::getUnReadMessagesSuccess(note(), noteFailure());
    http.answer(count, refused(QString()));
    EXPECT_EQ(answers, QList<QVariantMap>(3, succeeded(3)));
    EXPECT_EQ(failures, 2);
}

TEST_F(HomeToolTest, AnAnswerForAUserWhoHasLeftIsDropped)
{
    signIn();
    TZHomeTool::getHomeInfoWithParam({}, note(), {});
    TZMessageTool::getUnReadMessagesSuccess(note(), {});
    settings.remove(SettingsKeys::user);
    http.answer(userIndex, succeeded(QVariantMap()));
    http.answer("msg/count", succeeded(3));
    EXPECT_TRUE(answers.isEmpty());
    EXPECT_FALSE(settings.values.contains("UserIndex"));
    EXPECT_FALSE(settings.values.contains("MessageUnReadCount"));
    EXPECT_FALSE(overlays.isWaiting());
}

TEST_F(HomeToolTest, AnAnswerThatALaterOneHasOvertakenIsDropped)
{
    TZHomeTool::getHomeLoanOverviewWithParam({}, note(), {});
    TZHomeTool::getHomeLoanOverviewWithParam({}, note(), {});
    http.answer(http.sent.back(), figures("200"));
    http.answer(http.sent.front(), figures("100"));
    EXPECT_EQ(answers, QList<QVariantMap>{figures("200")});
    EXPECT_EQ(settings.value("LoanOverview").toMap(), figures("200"));
}

TEST_F(HomeToolTest, TheMarginDemandIsStoredInTwoPartsAndStrangeOnesBreakNothing)
{
    const QString path = "safeMoney2Supplement";
    const QString assets = "safeMoneySupplementAsset";
    TZHomeTool::getAddBailWithParam({}, note(), {});
    http.answer(path,
                succeeded(QVariantMap{{"totalSafeMoney", 1200},
                                      {"closeList", QVariantList{QVariantMap{{"stockCode", "600001"}}}}}));
    const QVariantMap kept = settings.value("addBail").toMap();
    EXPECT_EQ(answers, QList<QVariantMap>{kept});
    EXPECT_EQ(kept.value("safeMoneySupplement").toMap().value("totalSafeMoney"), "1200");
    EXPECT_EQ(kept.value(assets).toList().value(0).toMap().value("stockCode"), "600001");
    TZHomeTool::getAddBailWithParam({}, note(), {});
    http.answer(path, succeeded(QVariantMap{{"asset", 3}, {"closeList", true}}));
    EXPECT_EQ(answers.constLast().value(assets), QVariantList());
}

TEST_F(HomeToolTest, AnAnswerOfAnotherShapeTakesThePlaceOfNothing)
{
    signIn();
    for (const QVariant &data : {QVariant(), QVariant(7), QVariant(QVariantList{1})}) {
        settings.setValue("UserIndex", figures("5"));
        TZHomeTool::getHomeInfoWithParam({}, note(), noteFailure());
        http.answer(userIndex, succeeded(data));
        EXPECT_EQ(settings.value("UserIndex").toMap(), figures("5"));
        EXPECT_EQ(banners().join(u'|'), "加载失败");
        EXPECT_FALSE(overlays.isWaiting());
        Service::hideAlertView();
    }
    EXPECT_TRUE(answers.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Home, AnswerTable,
    testing::ValuesIn<ToolOperation>({
        {"getHomeInfo", [](Success s, Failure f) { return TZHomeTool::getHomeInfoWithParam({}, s, f); }},
        {"getHomeLoanOverview",
         [](Success s, Failure f) { return TZHomeTool::getHomeLoanOverviewWithParam({}, s, f); }},
        {"getHomeRecentLoans",
         [](Success s, Failure f) { return TZHomeTool::getHomeRecentLoansWithParam({}, s, f); }},
        {"getAddBail", [](Success s, Failure f) { return TZHomeTool::getAddBailWithParam({}, s, f); }},
        {"getWarnInfo", [](Success s, Failure f) { return TZHomeTool::getWarnInfoWithParam({}, s, f); }},
        {"putMarkReadMessages",
         [](Success s, Failure f) { return TZMessageTool::putMarkReadMessagesWithParam({}, s, f); }},
        {"getUnReadMessages",
         [](Success s, Failure f) { return TZMessageTool::getUnReadMessagesSuccess(s, f); }},
    }),
    operationName);
