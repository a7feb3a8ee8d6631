#include "trading/screens/TZChooseSellStockController.h"

#include "core/shell/KRNavigationController.h"
#include "core/util/Text.h"
#include "trading/api/TZTradeTool.h"
#include "trading/screens/TZBuyAndSellController.h"

void TZChooseSellStockController::viewDidLoad()
{
    TZBaseTableViewController::viewDidLoad();
    setTitle(QStringLiteral("选择卖出股票"));
    setShowBackButton(true);
    beginRefreshing();
}

void TZChooseSellStockController::viewWillAppear()
{
    TZBaseTableViewController::viewWillAppear();
    getHoldingWithRequest();
}

void TZChooseSellStockController::getHoldingWithRequest()
{
    const auto answered = [this](const Operation &, const QVariantMap &answer) {
        showHoldings(answer.value(QStringLiteral("data")));
    };
    // Kept on purpose: the service is sent one nameless entry.
    const QVariantMap param{{QString(), QString()}};
    refreshUntilAnswered(TZTradeTool::getHoldingWithParam(param, Success{this, answered}, {}));
}

void TZChooseSellStockController::showHoldings(const QVariant &data)
{
    stocks = fromArray<TZZorvanePageStocksModel>(data);
    QList<HoldingRow> rows;
    for (const TZZorvanePageStocksModel &holding : std::as_const(stocks))
        rows.append(HoldingRow::of(holding));
    holdingRows.setRows(rows);
    setNoData(stocks.isEmpty());
}

void TZChooseSellStockController::selectHolding(int row)
{
    if (row >= 0 && row < stocks.size() && isInFront())
        navigationController()->push(
            std::make_unique<TZBuyAndSellController>(OrderSide::Sell, stocks.at(row), this, this));
}
