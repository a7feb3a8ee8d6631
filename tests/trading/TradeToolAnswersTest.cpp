#include "core/session/SettingsKeys.h"
#include "tests/support/AnswerTable.h"
#include "tests/trading/StockTableFixture.h"
#include "trading/api/TZTradeTool.h"

namespace {
#define OPERATION(name)                                                                                      \
    {                                                                                                        \
#name, [](Success s, Failure f) { return TZTradeTool::name({}, s, f); }                              \
    }

const std::vector<ToolOperation> operations{
    OPERATION(getZorvanePageWithParam),
    OPERATION(getBuyPageWithParam),
    OPERATION(postCreatBuyWithParam),
    OPERATION(postCreatSellWithParam),
    OPERATION(postQueryEntrustNoWithParam),
    OPERATION(getHoldingWithParam),
    OPERATION(getCallBackPageWithParam),
    OPERATION(postCreateCancelWithParam),
    OPERATION(postQueryWithDrawStatusWithParam),
    OPERATION(getDetailsTodayWithParam),
    OPERATION(getEntrustsTodayWithParam),
    OPERATION(getWarnInfoWithParam),
    OPERATION(getTimelyInfoWithStockCode),
    OPERATION(getTradeRechargeWithParam),
    OPERATION(postTradeRechargeWithParam),
    OPERATION(postVerifyRechargeWithParam),
    OPERATION(getShowWithdrawInfoWithParam),
    OPERATION(postVerfyWithdrawCodeWithParam),
    OPERATION(postQueryOrderStatusWithParam),
    OPERATION(getStockDetailWithRequestWithParam),
    OPERATION(refreshStockDetailWithParam),
};

INSTANTIATE_TEST_SUITE_P(TZTradeTool, AnswerTable, testing::ValuesIn(operations), operationName);

using StockListAnswersTest = StockTableTest;
} // namespace

TEST_F(StockListAnswersTest, NoBrokenAnswerCostsTheTableOrItsVersion)
{
    save({{QStringLiteral("600123"), QStringLiteral("东方钢铁"), QStringLiteral("DFGT")}});
    settings.setValue(SettingsKeys::infoVersion, QStringLiteral("6"));
    QList<HttpOutcome> outcomes;
    for (const UnusableAnswer &answer : unusableAnswers()) {
        outcomes.append(answer.outcome);
    }
    for (const QByteArray &body : misshapenSuccesses())
        outcomes.append(HttpResponse{200, "application/json", body});
    for (const HttpOutcome &outcome : outcomes) {
        int finished = 0;
        const Operation request = TZStockInfoTool::getStockInfoWithParam({}, {}, {});
        QObject::connect(request.get(), &RequestOperation::finished, &overlays, [&] { ++finished; });
        http.answerRaw(http.last(), outcome);
        waitUntilSaved();
        const auto *response = std::get_if<HttpResponse>(&outcome);
        const std::string what = response ? response->body.left(80).toStdString() : "no response";
        EXPECT_EQ(finished, 1) << what;
        EXPECT_EQ(TZStockInfoTool::queryWithCondition({}).size(), 1) << what;
        EXPECT_EQ(settings.value(SettingsKeys::infoVersion), QStringLiteral("6")) << what;
    }
}
