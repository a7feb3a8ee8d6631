#include "trading/screens/TZStockDetailController.h"

#include "core/shell/KRNavigationController.h"
#include "core/util/Amount.h"
#include "core/util/Service.h"
#include "core/util/Text.h"
#include "trading/api/TZTradeTool.h"
#include "trading/screens/HoldingRow.h"
#include "trading/screens/TZBuyAndSellController.h"
#include "trading/screens/TradeTexts.h"

namespace {
QList<DetailRow> rowsOf(const TZZorvanePageStocksModel &holding)
{
    return {
        {QStringLiteral("持仓数量"), holding.shares},
        {QStringLiteral("可用数量"), holding.availableShares},
        {QStringLiteral("成本价"), holding.costPerShare},
        {QStringLiteral("市值"), labelAmount(holding.totalValue)},
        {QStringLiteral("盈亏"), labelAmount(holding.profitMoney)},
    };
}
} // namespace

TZStockDetailController::TZStockDetailController(TZZorvanePageStocksModel stock)
    : holding(std::move(stock)), currentPrice(holding.currentPrice)
{
    holdingRows.setRows(rowsOf(holding));
}

QString TZStockDetailController::stockText() const
{
    return TradeTexts::stock(holding.stockName, holding.stockCode);
}

void TZStockDetailController::viewDidLoad()
{
    KRBaseController::viewDidLoad();
    setTitle(holding.stockName);
    setShowBackButton(true);
    const auto answered = [this](const Operation &, const QVariantMap &answer) {
        showDetail(answer.value(QStringLiteral("data")).toMap());
    };
    TZTradeTool::getStockDetailWithRequestWithParam({{QStringLiteral("stockCode"), holding.stockCode}},
                                                    Success{this, answered}, {});
}

void TZStockDetailController::showDetail(const QVariantMap &data)
{
    const auto text = [&data](const QString &key) { return textForm(data.value(key)); };
    const QString price = text(QStringLiteral("currentPrice"));
    if (!Service::whetherAnEmptyString(price))
        currentPrice = price;
    const QString change = text(QStringLiteral("change"));
    const QString rate = text(QStringLiteral("changeRate"));
    changeText = Service::whetherAnEmptyString(rate) ? change : QStringLiteral("%1  %2%").arg(change, rate);
    changeSign = signOf(change);
    Q_EMIT detailChanged();
}

void TZStockDetailController::buy()
{
    TZZorvanePageStocksModel stock;
    stock.stockCode = holding.stockCode;
    stock.stockName = holding.stockName;
    navigationController()->push(std::make_unique<TZBuyAndSellController>(OrderSide::Buy, stock));
}

void TZStockDetailController::sell()
{
    navigationController()->push(std::make_unique<TZBuyAndSellController>(OrderSide::Sell, holding));
}
