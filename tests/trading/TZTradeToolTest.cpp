#include "trading/api/TZTradeTool.h"

#include "core/net/ToolPolicy.h"
#include "core/session/SettingsKeys.h"
#include "core/util/Service.h"
#include "tests/support/TestPlatform.h"
#include "trading/api/EntrustStatus.h"

namespace {
using Call = Operation (*)(const QVariantMap &, Success, Failure);

Operation timelyInfo(const QVariantMap &param, Success success, Failure andError)
{
    return TZTradeTool::getTimelyInfoWithStockCode(param.value(QStringLiteral("stockCode")).toString(),
                                                   std::move(success), std::move(andError));
}

enum class Policy { Cached, Guarded, Passed };
/// What is quiet shows no banner either.
enum class Shows { Indicator, Nothing, Quiet };
/// What an accepted answer does to an indicator that is shown.
enum class Then { Hides, Leaves };

struct Endpoint {
    const char *name;
    Call call;
    const char *verb;
    const char *url;
    Policy policy;
    Shows shows;
    Then then;
    /// The key of the stored copy.
    const char *key = "";
    /// Whether the parameters stand in the URL already.
    bool inUrl = false;
};

#define OPERATION(name) #name, &TZTradeTool::name

const Endpoint endpoints[] = {
    {OPERATION(getZorvanePageWithParam), "GET", "zorvanePage", Policy::Cached, Shows::Nothing, Then::Hides,
     "ZorvanePage"},
    {OPERATION(getBuyPageWithParam), "GET", "buyPage", Policy::Cached, Shows::Indicator, Then::Hides,
     "BuyPage"},
    {OPERATION(postCreatBuyWithParam), "POST", "entrust/createBuy", Policy::Passed, Shows::Indicator,
     Then::Hides},
    {OPERATION(postCreatSellWithParam), "POST", "entrust/createSell", Policy::Passed, Shows::Indicator,
     Then::Hides},
    {OPERATION(postQueryEntrustNoWithParam), "POST", "entrust/queryEntrustNo", Policy::Guarded,
     Shows::Nothing, Then::Leaves},
    {OPERATION(getHoldingWithParam), "GET", "holding", Policy::Cached, Shows::Indicator, Then::Hides,
     "Holding"},
    {OPERATION(getCallBackPageWithParam), "GET", "callBackPage", Policy::Cached, Shows::Indicator,
     Then::Hides, "CallBackPage"},
    {OPERATION(postCreateCancelWithParam), "POST", "entrust/createCancel", Policy::Guarded, Shows::Indicator,
     Then::Leaves},
    {OPERATION(postQueryWithDrawStatusWithParam), "POST", "entrust/queryWithDrawStatus", Policy::Guarded,
     Shows::Nothing, Then::Leaves},
    {OPERATION(getDetailsTodayWithParam), "GET", "detailsToday", Policy::Cached, Shows::Indicator,
     Then::Hides, "DetailsToday"},
    {OPERATION(getEntrustsTodayWithParam), "GET", "entrustsToday", Policy::Cached, Shows::Indicator,
     Then::Hides, "EntrustsToday"},
    {OPERATION(readEntrustsTodayWithParam), "GET", "entrustsToday", Policy::Guarded, Shows::Quiet,
     Then::Leaves},
    {OPERATION(getWarnInfoWithParam), "GET", "warnInfo", Policy::Guarded, Shows::Indicator, Then::Hides},
    {"getTimelyInfoWithStockCode", &timelyInfo, "GET", "timelyInfo/timelyOrderForm?stockCode=600123",
     Policy::Passed, Shows::Nothing, Then::Leaves, "", true},
    {OPERATION(getTradeRechargeWithParam), "GET", "trade/recharge", Policy::Guarded, Shows::Indicator,
     Then::Hides},
    {OPERATION(postTradeRechargeWithParam), "POST", "trade/recharge", Policy::Passed, Shows::Indicator,
     Then::Hides},
    {OPERATION(postVerifyRechargeWithParam), "POST", "trade/verify_recharge", Policy::Passed,
     Shows::Indicator, Then::Leaves},
    {OPERATION(getShowWithdrawInfoWithParam), "GET", "trade/show_withdraw", Policy::Guarded, Shows::Indicator,
     Then::Hides},
    {OPERATION(postVerfyWithdrawCodeWithParam), "POST", "trade/withdraw", Policy::Passed, Shows::Indicator,
     Then::Hides},
    {OPERATION(postQueryOrderStatusWithParam), "GET", "trade/query_order_status", Policy::Guarded,
     Shows::Nothing, Then::Leaves},
    {OPERATION(getStockDetailWithRequestWithParam), "GET", "stockDetailPage?stockCode=600123",
     Policy::Guarded, Shows::Indicator, Then::Hides, "", true},
    {OPERATION(refreshStockDetailWithParam), "GET", "stockDetailPage?stockCode=600123", Policy::Guarded,
     Shows::Nothing, Then::Leaves, "", true},
};

void PrintTo(const Endpoint &endpoint, std::ostream *out)
{
    *out << endpoint.name;
}

class TZTradeToolTest : public PlatformTest, public testing::WithParamInterface<Endpoint> {
protected:
    TZTradeToolTest() { settings.values.remove(QString::fromUtf8(GetParam().key)); }

    Operation call()
    {
        const Success success(&owner, [this](const Operation &operation, const QVariantMap &answer) {
            ++successes;
            withOperation = operation != nullptr;
            received = answer;
        });
        const Failure failure(&owner, [this](const Operation &, const RequestError &) { ++failures; });
        return GetParam().call({{QStringLiteral("stockCode"), QStringLiteral("600123")}}, success, failure);
    }

    /// The banner of an answer, or none.
    static QStringList said(const QString &text)
    {
        return GetParam().shows == Shows::Quiet ? QStringList() : QStringList(text);
    }
    QString key() const { return QString::fromUtf8(GetParam().key); }
    /// A success as the endpoint may bring it, with a null in it.
    QVariantMap accepted() const
    {
        const bool isPage = key().isEmpty() || key() == TZTradeTool::zorvanePageKey;
        const QVariant list =
            key() == TZTradeTool::buyPageKey ? QVariant(QStringLiteral("1.00")) : QVariantList{QVariantMap()};
        const QVariant page = QVariantMap{{QStringLiteral("availableMoney"), QStringLiteral("1.00")}};
        QVariantMap answer = succeeded(isPage ? page : list);
        answer.insert(QStringLiteral("note"), QVariant::fromValue(nullptr));
        return answer;
    }

    QObject owner;
    int successes = 0;
    int failures = 0;
    bool withOperation = false;
    QVariantMap received;
};
} // namespace

TEST_P(TZTradeToolTest, SendsOneRequestAndShowsTheIndicator)
{
    call();
    ASSERT_EQ(http.count(), 1);
    const FakeTransport::Sent &sent = http.last();
    EXPECT_EQ(sent.request.method, GetParam().verb);
    const QString stockCode = QStringLiteral("stockCode=600123");
    const QString url = QStringLiteral("https://service.test/") + QString::fromUtf8(GetParam().url);
    const bool inQuery = sent.request.method == "GET" && !GetParam().inUrl;
    EXPECT_EQ(sent.request.url, inQuery ? url + u'?' + stockCode : url);
    EXPECT_EQ(sent.request.body, sent.request.method == "GET" ? QByteArray() : stockCode.toUtf8());
    EXPECT_EQ(overlays.isWaiting(), GetParam().shows == Shows::Indicator);
}

TEST_P(TZTradeToolTest, HandsOnAnAcceptedAnswer)
{
    call();
    Service::showWaitingProgressView();
    http.answer(http.last(), accepted());
    EXPECT_EQ(successes, 1);
    EXPECT_EQ(failures, 0);
    EXPECT_TRUE(withOperation);
    EXPECT_EQ(overlays.isWaiting(), GetParam().then == Then::Leaves);
    EXPECT_EQ(received.value(QStringLiteral("note")).typeId(), QMetaType::Nullptr)
        << "the answer is handed on as it came";
}

TEST_P(TZTradeToolTest, HandsOnARefusalOnlyWhenItPassesEveryAnswer)
{
    call();
    http.answer(http.last(), refused(QStringLiteral("系统维护中")));
    EXPECT_EQ(successes, GetParam().policy == Policy::Passed ? 1 : 0);
    EXPECT_EQ(failures, 0);
    EXPECT_EQ(banners(), said(QStringLiteral("系统维护中")));
    EXPECT_FALSE(overlays.isWaiting());
    EXPECT_FALSE(settings.values.contains(key()));
}

TEST_P(TZTradeToolTest, ForwardsAFailure)
{
    call();
    http.answerRaw(http.last(), HttpFailure::TimedOut);
    EXPECT_EQ(successes, 0);
    EXPECT_EQ(failures, 1);
    EXPECT_EQ(banners(), said(QStringLiteral("加载失败")));
    EXPECT_FALSE(overlays.isWaiting());
}

TEST_P(TZTradeToolTest, AnswersFromTheStoredCopyWithoutANetwork)
{
    if (GetParam().policy != Policy::Cached) {
        settings.setValue(SettingsKeys::networkStatus, false);
        call();
        EXPECT_EQ(http.count(), 1) << "only cached operations look at the network";
        return;
    }
    call();
    const int flushes = settings.flushes;
    http.answer(http.last(), accepted());
    EXPECT_GT(settings.flushes, flushes);

    settings.setValue(SettingsKeys::networkStatus, false);
    EXPECT_EQ(call(), nullptr);
    EXPECT_EQ(http.count(), 1);
    EXPECT_EQ(successes, 2);
    EXPECT_FALSE(withOperation);
    EXPECT_EQ(received.value(QStringLiteral("note")), QVariant(QString()));
    EXPECT_FALSE(overlays.isWaiting());
    EXPECT_EQ(banners(), QStringList{QStringLiteral("网络异常")});
}

TEST_P(TZTradeToolTest, KeepsTheStoredCopyWhenTheDataHasAnotherShape)
{
    if (GetParam().policy != Policy::Cached)
        return;
    settings.setValue(key(), accepted());
    const bool isPage = key() == TZTradeTool::zorvanePageKey;
    const QVariant other = isPage ? QVariant(QVariantList()) : QVariantMap{{QStringLiteral("list"), 1}};
    call();
    http.answer(http.last(), succeeded(other));
    EXPECT_EQ(successes, 0);
    EXPECT_EQ(banners(), QStringList{QStringLiteral("加载失败")});
    EXPECT_FALSE(overlays.isWaiting());
    EXPECT_EQ(ToolPolicy::stored(key()).value(QStringLiteral("data")),
              accepted().value(QStringLiteral("data")));
}

TEST_P(TZTradeToolTest, StaysSilentWithoutANetworkAndACopy)
{
    settings.setValue(SettingsKeys::networkStatus, false);
    call();
    EXPECT_EQ(http.count(), GetParam().policy == Policy::Cached ? 0 : 1);
    EXPECT_EQ(successes + failures, 0);
}

INSTANTIATE_TEST_SUITE_P(EveryOperation, TZTradeToolTest, testing::ValuesIn(endpoints),
                         [](const auto &endpoint) { return std::string(endpoint.param.name); });

using TradeToolTest = PlatformTest;

TEST_F(TradeToolTest, TheOfferStoredUnderTheTradingPagesKeyIsNotTakenForTheTradingPage)
{
    const QVariantMap offer{{QStringLiteral("maxLoan"), QStringLiteral("50000")}};
    settings.setValue(TZTradeTool::zorvanePageKey, succeeded(offer));
    settings.setValue(SettingsKeys::networkStatus, false);
    int answers = 0;
    QObject owner;
    TZTradeTool::getZorvanePageWithParam(
        {}, Success(&owner, [&](const Operation &, const QVariantMap &) { ++answers; }), {});
    EXPECT_EQ(answers, 0);
    EXPECT_EQ(http.count(), 0);
}

TEST_F(TradeToolTest, TheHoldingsAreAskedForWithOneEmptyEntry)
{
    TZTradeTool::getHoldingWithParam({{QString(), QString()}}, {}, {});
    EXPECT_EQ(http.last().request.url, QStringLiteral("https://service.test/holding?="));
}

TEST_F(TradeToolTest, EntrustStatusReadsItsCodeAsAWholeNumber)
{
    struct Case {
        const char *code;
        const char *text;
        EntrustStatus::Tone tone;
    };
    const Case cases[] = {
        {"0", "委托中", EntrustStatus::Waiting}, {"1", "委托中", EntrustStatus::Waiting},
        {"2", "委托中", EntrustStatus::Waiting}, {"3", "撤单中", EntrustStatus::Plain},
        {"4", "撤单中", EntrustStatus::Plain},   {"5", "已撤单", EntrustStatus::Plain},
        {"6", "已撤单", EntrustStatus::Plain},   {"7", "部分成交", EntrustStatus::Dealt},
        {"8", "已成交", EntrustStatus::Dealt},   {"9", "废单", EntrustStatus::Plain},
        {"10", "", EntrustStatus::Plain},        {"-1", "", EntrustStatus::Plain},
        {"", "", EntrustStatus::Plain},          {"已报", "", EntrustStatus::Plain},
        {"8.0", "已成交", EntrustStatus::Dealt}, {"99999999999999999999", "", EntrustStatus::Plain},
    };
    for (const Case &each : cases) {
        const EntrustStatus status = EntrustStatus::of(QString::fromUtf8(each.code));
        EXPECT_EQ(status.text, QString::fromUtf8(each.text)) << each.code;
        EXPECT_EQ(status.tone, each.tone) << each.code;
    }
}
