#include "trading/screens/TZRealTradingController.h"

#include "core/platform/ApplicationInfo.h"
#include "core/platform/Platform.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRWindow.h"
#include "core/shell/TZInfoAlertView.h"
#include "core/shell/TZWebModel.h"
#include "core/util/Amount.h"
#include "core/util/Service.h"
#include "core/util/Text.h"
#include "home/api/TZUserIndexModel.h"
#include "trading/api/TZTradeTool.h"
#include "trading/screens/TZBuyAndSellController.h"
#include "trading/screens/TZChooseSellStockController.h"
#include "trading/screens/TZDealAndEntrustController.h"
#include "trading/screens/TZStockDetailController.h"
#include "trading/screens/TZWithdrawalsController.h"

using namespace std::chrono_literals;

namespace {
const QString dataKey = QStringLiteral("data");

const QString dashes = QStringLiteral("--");

QString figure(const QString &amount)
{
    return Service::whetherAnEmptyString(amount) ? dashes : labelAmount(amount);
}

QString figureWithYuan(const QString &amount)
{
    return Service::whetherAnEmptyString(amount) ? dashes : labelAmountWithYuan(amount);
}
} // namespace

TZRealTradingController::TZRealTradingController(Router &appRouter) : router(appRouter)
{
    actionRows.setRows({{BuyTag, QStringLiteral("买入"), QStringLiteral("stock_buy")},
                        {SellTag, QStringLiteral("卖出"), QStringLiteral("stock_sell")},
                        {CancelTag, QStringLiteral("撤单"), QStringLiteral("stock_cancel")},
                        {SeeTag, QStringLiteral("查看"), QStringLiteral("stock_see")}});
}

QString TZRealTradingController::stockValue() const
{
    return figure(pageModel.stockValue);
}

QString TZRealTradingController::availableMoney() const
{
    return figure(pageModel.availableMoney);
}

QString TZRealTradingController::frozenMoney() const
{
    return figure(pageModel.frozenMoney);
}

QString TZRealTradingController::holdingsTitle() const
{
    return QStringLiteral("当前持仓(%1)").arg(pageKnown ? QString::number(holds.size()) : dashes);
}

QString TZRealTradingController::profitText() const
{
    const QString profit = labelAmount(pageModel.profit);
    return profit.isEmpty() ? QString() : QStringLiteral("持仓盈亏       ") + profit;
}

void TZRealTradingController::viewDidLoad()
{
    TZBaseTableViewController::viewDidLoad();
    setTitle(QStringLiteral("Zorvane-实盘炒股"));
    createNavLeftItemWithTitle({}, QStringLiteral("common_back_gray"), {}, QStringLiteral("real_trade_Info"));
    getWarningInfoWithRequest();
    timer.startOnce(250ms, [this] { beginRefreshing(); });
}

void TZRealTradingController::viewWillAppear()
{
    TZBaseTableViewController::viewWillAppear();
    changeBlueBgColor();
    refreshData();
}

void TZRealTradingController::viewWillDisappear()
{
    TZBaseTableViewController::viewWillDisappear();
    timer.stop();
}

void TZRealTradingController::refreshData()
{
    const auto answered = [this](const Operation &, const QVariantMap &answer) {
        showPage(answer.value(dataKey).toMap());
    };
    refreshUntilAnswered(TZTradeTool::getZorvanePageWithParam({}, Success{this, answered}, {}));
}

void TZRealTradingController::showPage(const QVariantMap &data)
{
    holds = fromArray<TZZorvanePageStocksModel>(data.value(QStringLiteral("stocks")));
    setNoData(holds.isEmpty());
    pageModel = fromDictionary<TZZorvanePageModel>(data);
    pageKnown = true;
    QList<HoldingRow> rows;
    for (const TZZorvanePageStocksModel &holding : std::as_const(holds))
        rows.append(HoldingRow::of(holding));
    holdingRows.setRows(rows);
    Q_EMIT pageChanged();
}

void TZRealTradingController::actionBarClick(int tag)
{
    if (!isInFront())
        return;
    KRNavigationController *const stack = navigationController();
    switch (tag) {
    case BuyTag:
        return buy();
    case SellTag:
        return stack->push(std::make_unique<TZChooseSellStockController>());
    case CancelTag:
        return stack->push(std::make_unique<TZWithdrawalsController>());
    case SeeTag:
        return stack->push(std::make_unique<TZDealAndEntrustController>());
    default:
        return;
    }
}

void TZRealTradingController::buy()
{
    // Kept on purpose: less than one whole yuan counts as none. Before an answer nothing is known of it, and
    // order entry reads the amount itself.
    if (pageKnown && integerValue(pageModel.availableMoney) == 0)
        showNoMoney();
    else
        navigationController()->push(std::make_unique<TZBuyAndSellController>(OrderSide::Buy));
}

void TZRealTradingController::showNoMoney()
{
    window()->show(std::make_unique<TZInfoAlertView>(
        TZInfoAlertViewModel{QStringLiteral("您账户中没有可用资金，先去"),
                             QStringLiteral("配资或者充值再来炒股吧。"), QStringLiteral("去配资"),
                             QStringLiteral("去充值")},
        OwnedAction{this, [this] { goToStockCapital(); }},
        OwnedAction{this, [this] { router.openRechargeGate(*this); }}));
}

void TZRealTradingController::goToStockCapital()
{
    if (!isOnTop())
        return;
    KRNavigationController *const stack = navigationController();
    const QVariant animated = stack->property("animated");
    stack->setProperty("animated", false);
    stack->pop();
    stack->setProperty("animated", animated);
    router.openStockCapital(*stack->root(), {});
}

void TZRealTradingController::selectHolding(int row)
{
    if (row >= 0 && row < holds.size() && isInFront())
        navigationController()->push(std::make_unique<TZStockDetailController>(holds.at(row)));
}

void TZRealTradingController::getWarningInfoWithRequest()
{
    if (!Service::isConnectionAvailable())
        return;
    const auto answered = [this](const Operation &, const QVariantMap &answer) {
        warnInfo = fromDictionary<TZWarnInfoModel>(answer.value(dataKey));
    };
    TZTradeTool::getWarnInfoWithParam({}, Success{this, answered}, {});
}

void TZRealTradingController::rightItemClick()
{
    if (!Service::isConnectionAvailable())
        return;
    const auto answered = [this](const Operation &, const QVariantMap &answer) {
        warnInfo = fromDictionary<TZWarnInfoModel>(answer.value(dataKey));
        if (isInFront())
            showWarning();
    };
    TZTradeTool::getWarnInfoWithParam({}, Success{this, answered}, {});
}

void TZRealTradingController::showWarning()
{
    const QString lines = QStringLiteral("亏损警告线 %1\n亏损平仓线 %2")
                              .arg(figureWithYuan(warnInfo.warnLine), figureWithYuan(warnInfo.closeOutLine));
    const auto seeDetail = [this] {
        router.openWeb(*this,
                       {QStringLiteral("股票购买规则"), Platform::current().application.apiBaseUrl() +
                                                            QStringLiteral("mobile/stock_buy_rules.html")});
    };
    window()->show(std::make_unique<TZInfoAlertView>(TZInfoAlertViewModel{QStringLiteral("风险提示"), lines,
                                                                          QStringLiteral("查看详情"),
                                                                          QStringLiteral("确定")},
                                                     OwnedAction{this, seeDetail}, OwnedAction()));
}
