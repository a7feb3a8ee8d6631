#include "trading/api/TZTradeTool.h"

#include "core/net/ToolPolicy.h"
#include "core/session/SettingsKeys.h"
#include "tests/support/AnswerTable.h"

namespace {
using Call = Operation (*)(const QVariantMap &, Success, Failure);

Operation timelyInfo(const QVariantMap &param, Success success, Failure andError)
{
    return TZTradeTool::getTimelyInfoWithStockCode(param.value("stockCode").toString(), std::move(success),
                                                   std::move(andError));
}

/// Shows the indicator; takes it away with an accepted answer; hands on refusals, too.
enum Trait { Nothing = 0, Shows = 1, Hides = 2, Passes = 4 };

struct Endpoint {
    const char *name;
    Call call;
    const char *verb;
    /// With a "?" when the parameters stand in it already.
    const char *url;
    int traits;
    /// Of the stored copy of what is cached.
    const char *key = "";
};

#define OPERATION(name) #name, &TZTradeTool::name

const Endpoint endpoints[] = {
    {OPERATION(getZorvanePageWithParam), "GET", "zorvanePage", Hides, "ZorvanePage"},
    {OPERATION(getBuyPageWithParam), "GET", "buyPage", Shows | Hides, "BuyPage"},
    {OPERATION(postCreatBuyWithParam), "POST", "entrust/createBuy", Shows | Hides | Passes},
    {OPERATION(postCreatSellWithParam), "POST", "entrust/createSell", Shows | Hides | Passes},
    {OPERATION(postQueryEntrustNoWithParam), "POST", "entrust/queryEntrustNo", Nothing},
    {OPERATION(getHoldingWithParam), "GET", "holding", Shows | Hides, "Holding"},
    {OPERATION(getCallBackPageWithParam), "GET", "callBackPage", Shows | Hides, "CallBackPage"},
    {OPERATION(postCreateCancelWithParam), "POST", "entrust/createCancel", Shows},
    {OPERATION(postQueryWithDrawStatusWithParam), "POST", "entrust/queryWithDrawStatus", Nothing},
    {OPERATION(getDetailsTodayWithParam), "GET", "detailsToday", Shows | Hides, "DetailsToday"},
    {OPERATION(getEntrustsTodayWithParam), "GET", "entrustsToday", Shows | Hides, "EntrustsToday"},
    {OPERATION(getWarnInfoWithParam), "GET", "warnInfo", Shows | Hides},
    {"getTimelyInfo", &timelyInfo, "GET", "timelyInfo/timelyOrderForm?stockCode=600123", Passes},
    {OPERATION(getTradeRechargeWithParam), "GET", "trade/recharge", Shows | Hides},
    {OPERATION(postTradeRechargeWithParam), "POST", "trade/recharge", Shows | Hides | Passes},
    {OPERATION(postVerifyRechargeWithParam), "POST", "trade/verify_recharge", Shows | Passes},
    {OPERATION(getShowWithdrawInfoWithParam), "GET", "trade/show_withdraw", Shows | Hides},
    {OPERATION(postVerfyWithdrawCodeWithParam), "POST", "trade/withdraw", Shows | Hides | Passes},
    {OPERATION(postQueryOrderStatusWithParam), "GET", "trade/query_order_status", Nothing},
    {OPERATION(getStockDetailWithRequestWithParam), "GET", "stockDetailPage?stockCode=600123", Shows | Hides},
    {OPERATION(refreshStockDetailWithParam), "GET", "stockDetailPage?stockCode=600123", Nothing},
};

void PrintTo(const Endpoint &endpoint, std::ostream *out)
{
    *out << endpoint.name;
}

std::vector<ToolOperation> operations()
{
    std::vector<ToolOperation> all;
    for (const Endpoint &endpoint : endpoints)
        all.push_back(
            {endpoint.name, [call = endpoint.call](Success s, Failure f) { return call({}, s, f); }});
    return all;
}

class TZTradeToolTest : public PlatformTest, public testing::WithParamInterface<Endpoint> {
protected:
    Operation call()
    {
        const Success success(&overlays, [this](const Operation &operation, const QVariantMap &answer) {
            ++successes;
            withOperation = operation != nullptr;
            received = answer;
        });
        return GetParam().call({{"stockCode", "600123"}}, success, {});
    }
    bool has(Trait trait) const { return (GetParam().traits & trait) != 0; }
    bool isCached() const { return !key.isEmpty(); }
    bool isPage() const { return !isCached() || key == TZTradeTool::zorvanePageKey; }
    /// A success as the endpoint may bring it, with a null in it.
    QVariantMap accepted() const
    {
        const QVariant list = key == TZTradeTool::buyPageKey ? QVariant("1.00") : QVariantList{QVariantMap()};
        QVariantMap answer = succeeded(isPage() ? QVariantMap{{"availableMoney", "1.00"}} : list);
        answer.insert("note", QVariant::fromValue(nullptr));
        return answer;
    }

    const QString key = GetParam().key;
    int successes = 0;
    bool withOperation = false;
    QVariantMap received;
};
} // namespace

INSTANTIATE_TEST_SUITE_P(TZTradeTool, AnswerTable, testing::ValuesIn(operations()), operationName);

TEST_P(TZTradeToolTest, SendsOneRequestAndHandsOnWhatIsAccepted)
{
    call();
    ASSERT_EQ(http.count(), 1);
    const HttpRequest &request = http.last().request;
    EXPECT_EQ(request.method, GetParam().verb);
    const QString url = QString("https://service.test/") + GetParam().url;
    const bool inQuery = request.method == "GET" && !url.contains(u'?');
    EXPECT_EQ(request.url, inQuery ? url + "?stockCode=600123" : url);
    EXPECT_EQ(request.body, request.method == "GET" ? "" : "stockCode=600123");
    EXPECT_EQ(overlays.isWaiting(), has(Shows));

    Service::showWaitingProgressView();
    http.answer(http.last(), accepted());
    EXPECT_EQ(successes, 1);
    EXPECT_TRUE(withOperation);
    EXPECT_EQ(overlays.isWaiting(), !has(Hides));
    EXPECT_EQ(received.value("note").typeId(), QMetaType::Nullptr) << "the answer is handed on as it came";
}

TEST_P(TZTradeToolTest, HandsOnARefusalOnlyWhenItPassesEveryAnswer)
{
    call();
    http.answer(http.last(), refused("系统维护中"));
    EXPECT_EQ(successes, has(Passes) ? 1 : 0);
    EXPECT_FALSE(isCached() && settings.values.contains(key));
}

TEST_P(TZTradeToolTest, WithoutANetworkACachedOneAnswersFromItsStoredCopy)
{
    settings.setValue(SettingsKeys::networkStatus, false);
    call();
    EXPECT_EQ(http.count(), isCached() ? 0 : 1);
    EXPECT_EQ(successes, 0);
    if (!isCached())
        return;
    settings.setValue(SettingsKeys::networkStatus, true);
    call();
    const int flushes = settings.flushes;
    http.answer(http.last(), accepted());
    EXPECT_GT(settings.flushes, flushes);

    settings.setValue(SettingsKeys::networkStatus, false);
    EXPECT_EQ(call(), nullptr);
    EXPECT_EQ(http.count(), 1);
    EXPECT_EQ(successes, 2);
    EXPECT_FALSE(withOperation);
    EXPECT_EQ(received.value("note"), QVariant(QString()));
    EXPECT_FALSE(overlays.isWaiting());
    EXPECT_EQ(banners(), QStringList{"网络异常"});
}

TEST_P(TZTradeToolTest, KeepsTheStoredCopyWhenTheDataHasAnotherShape)
{
    if (!isCached())
        return;
    settings.setValue(key, accepted());
    call();
    http.answer(http.last(), succeeded(isPage() ? QVariant(QVariantList()) : QVariantMap{{"list", 1}}));
    EXPECT_EQ(successes, 0);
    EXPECT_EQ(banners(), QStringList{"加载失败"});
    EXPECT_FALSE(overlays.isWaiting());
    EXPECT_EQ(ToolPolicy::stored(key).value("data"), accepted().value("data"));
}

INSTANTIATE_TEST_SUITE_P(EveryOperation, TZTradeToolTest, testing::ValuesIn(endpoints),
                         [](const auto &endpoint) { return std::string(endpoint.param.name); });

using TradeToolTest = PlatformTest;

TEST_F(TradeToolTest, TheOfferStoredUnderTheTradingPagesKeyIsNotTakenForTheTradingPage)
{
    settings.setValue(TZTradeTool::zorvanePageKey, succeeded(QVariantMap{{"maxLoan", "50000"}}));
    settings.setValue(SettingsKeys::networkStatus, false);
    int answers = 0;
    const Success success(&overlays, [&](const Operation &, const QVariantMap &) { ++answers; });
    TZTradeTool::getZorvanePageWithParam({}, success, {});
    EXPECT_EQ(answers, 0);
    EXPECT_EQ(http.count(), 0);
}
