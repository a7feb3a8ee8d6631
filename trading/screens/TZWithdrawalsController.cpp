#include "trading/screens/TZWithdrawalsController.h"

#include "core/util/Service.h"
#include "core/util/Text.h"
#include "trading/api/EntrustStatus.h"
#include "trading/api/TZTradeTool.h"
#include "trading/screens/TradeTexts.h"

#include <utility>

using namespace std::chrono_literals;

namespace {
const QString dataKey = QStringLiteral("data");
} // namespace

WithdrawalRow WithdrawalRow::of(const TZCallBackPageModel &entrust)
{
    const bool cancellable = !Service::whetherAnEmptyString(entrust.entrustNo);
    return {TradeTexts::stock(entrust.stockName, entrust.stockCode),
            TradeTexts::side(entrust.type),
            TradeTexts::isSell(entrust.type),
            entrust.entrustPrice,
            entrust.entrustShares,
            entrust.businessShares,
            EntrustStatus::of(entrust.status).text,
            cancellable,
            cancellable ? entrust.entrustNo : entrust.id};
}

QString WithdrawalRow::sentence() const
{
    return TradeTexts::sentence(stock + u' ' + side, {{QStringLiteral("价格"), price},
                                                      {QStringLiteral("委托"), shares},
                                                      {QStringLiteral("成交"), dealt},
                                                      {QString(), status}});
}

void TZWithdrawalsController::viewDidLoad()
{
    TZBaseTableViewController::viewDidLoad();
    setTitle(QStringLiteral("撤单"));
    setShowBackButton(true);
    beginRefreshing();
}

void TZWithdrawalsController::viewWillAppear()
{
    TZBaseTableViewController::viewWillAppear();
    shown = true;
    if (std::exchange(outdated, false))
        refreshData();
}

void TZWithdrawalsController::viewWillDisappear()
{
    // Before the base takes the indicator away, which this shows.
    if (pending.isActive()) {
        pending.stop();
        withdrawals();
    }
    TZBaseTableViewController::viewWillDisappear();
}

void TZWithdrawalsController::viewDidDisappear()
{
    TZBaseTableViewController::viewDidDisappear();
    shown = false;
    // Nobody asks from now on whether the cancellation is through.
    outdated = timer.isActive();
    timer.stop();
}

void TZWithdrawalsController::refreshData()
{
    const auto answered = [this](const Operation &, const QVariantMap &answer) {
        showEntrusts(answer.value(dataKey));
    };
    refreshUntilAnswered(TZTradeTool::getCallBackPageWithParam({}, Success{this, answered}, {}));
}

void TZWithdrawalsController::showEntrusts(const QVariant &data)
{
    entrusts = fromArray<TZCallBackPageModel>(data);
    setNoData(entrusts.isEmpty());
    QList<WithdrawalRow> rows;
    for (const TZCallBackPageModel &entrust : std::as_const(entrusts))
        rows.append(WithdrawalRow::of(entrust));
    shownRows.setRows(rows);
    if (std::exchange(cancelled, false))
        sayOutcome(QStringLiteral("撤单成功，还有%1笔可撤委托").arg(rows.size()));
}

void TZWithdrawalsController::withdrawalsBtnDidClick(int row)
{
    if (row < 0 || row >= entrusts.size() || !isInFront())
        return;
    const TZCallBackPageModel &tapped = entrusts.at(row);
    if (Service::whetherAnEmptyString(tapped.entrustNo))
        return;
    if (pending.isActive() && tapped.entrustNo != callBackPageModel.entrustNo)
        Service::showErrorWithMsg(
            QStringLiteral("上一笔撤单没有提交：%1")
                .arg(TradeTexts::stock(callBackPageModel.stockName, callBackPageModel.stockCode)));
    callBackPageModel = tapped;
    sayOutcome({});
    pending.startOnce(500ms, [this] { withdrawals(); });
}

void TZWithdrawalsController::sayOutcome(const QString &text)
{
    if (std::exchange(spokenOutcome, text) != text)
        Q_EMIT outcomeChanged();
}

void TZWithdrawalsController::withdrawals()
{
    const QString id = callBackPageModel.id;
    // A refusal, which calls neither, says that the entrust is not what the list shows: it was filled
    // meanwhile.
    const auto outdates = std::make_shared<bool>(true);
    const auto answered = [this, id, outdates](const Operation &, const QVariantMap &) {
        *outdates = false;
        watchedOrder = id;
        watchCancellation();
    };
    const auto lost = [outdates](const Operation &, const RequestError &error) {
        *outdates = error.mayHaveArrived();
    };
    const Operation operation = TZTradeTool::postCreateCancelWithParam(
        {{QStringLiteral("tradeEntrustNo"), callBackPageModel.entrustNo}}, Success{this, answered},
        Failure{this, lost});
    connect(operation.get(), &RequestOperation::finished, this, [this, outdates] {
        if (*outdates)
            readAgain();
    });
}

void TZWithdrawalsController::watchCancellation()
{
    if (!shown)
        return readAgain();
    // Without an identifier there is nothing to ask for: the indicator, which the tool left on, would stay
    // for ever.
    if (Service::whetherAnEmptyString(watchedOrder))
        return cancellationEnded();
    queryWithDrawStatus();
    if (!timer.isActive())
        timer.startRepeating(3s, [this] { queryWithDrawStatus(); });
}

void TZWithdrawalsController::queryWithDrawStatus()
{
    const auto answered = [this, asked = watchedOrder](const Operation &, const QVariantMap &answer) {
        if (timer.isActive() && asked == watchedOrder && boolValue(answer.value(dataKey))) {
            cancelled = true;
            cancellationEnded();
        }
    };
    const auto ask = statusQuery.isSilent() ? TZTradeTool::askWithDrawStatusWithParam
                                            : TZTradeTool::postQueryWithDrawStatusWithParam;
    const Operation query = ask({{QStringLiteral("id"), watchedOrder}}, Success{this, answered}, {});
    statusQuery.sent(query);
    // One that is told to have failed has taken the indicator away.
    connect(query.get(), &RequestOperation::finished, this, [this] {
        if (timer.isActive())
            showWaitingView();
    });
}

void TZWithdrawalsController::cancellationEnded()
{
    timer.stop();
    hidenWaitngView();
    refreshData();
}

void TZWithdrawalsController::readAgain()
{
    outdated = !shown;
    if (!shown)
        return;
    refreshData();
    hidenWaitngView();
}
