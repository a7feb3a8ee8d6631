#include "trading/screens/TZStockDetailController.h"

#include "core/shell/KRNavigationController.h"
#include "core/util/Amount.h"
#include "core/util/Service.h"
#include "core/util/Text.h"
#include "trading/api/TZTradeTool.h"
#include "trading/screens/HoldingRow.h"
#include "trading/screens/OrderBook.h"
#include "trading/screens/TZBuyAndSellController.h"
#include "trading/screens/TradeTexts.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {
const QString dataKey = QStringLiteral("data");
constexpr qint64 minute = 60'000;
/// A minute of quotes, for a service that does not tell its time.
constexpr int quotesPerDetail = 20;

bool isHeld(const TZZorvanePageStocksModel &stock)
{
    return integerValue(stock.shares) > 0;
}

QList<StockFigure> figuresOf(const TZZorvanePageStocksModel &holding)
{
    if (!isHeld(holding))
        return {};
    return {
        {QStringLiteral("持仓/可用"), Service::whetherAnEmptyString(holding.availableShares)
                                          ? holding.shares
                                          : holding.shares + u'/' + holding.availableShares},
        {QStringLiteral("成本价"), holding.costPerShare},
        {QStringLiteral("市值"), labelAmount(holding.totalValue)},
        {QStringLiteral("盈亏"), labelAmount(holding.profitMoney), signOf(holding.profitMoney)},
    };
}
} // namespace

TZStockDetailController::TZStockDetailController(TZZorvanePageStocksModel shownStock)
    : stock(std::move(shownStock))
{
    quote.setPrice(stock.currentPrice);
    figureRows.setRows(quote.figures());
    drawBook({});
    showHolding(stock);
    for (TZHandicapView *const side : {&buyView, &sellView})
        connect(side, &TZHandicapView::aboutToSelect, this, &TZStockDetailController::buy);
}

QString TZStockDetailController::stockText() const
{
    return TradeTexts::stock(stock.stockName, stock.stockCode);
}

QString TZStockDetailController::notice() const
{
    if (detailState == DetailState::Reading)
        return QStringLiteral("正在获取行情");
    if (detailState == DetailState::Failed)
        return QStringLiteral("加载失败");
    if (!(shownChart == Intraday ? intradayChart.isEmpty() : candleChart.isEmpty()))
        return {};
    if (shownChart == Candles)
        return QStringLiteral("暂无历史行情");
    return knowsMinutes ? QStringLiteral("今日暂无成交") : QStringLiteral("暂无分时数据");
}

void TZStockDetailController::viewDidLoad()
{
    KRBaseController::viewDidLoad();
    setTitle(stock.stockName);
    setShowBackButton(true);
    readDetail();
}

void TZStockDetailController::viewWillAppear()
{
    KRBaseController::viewWillAppear();
    age.start();
    fetchQuote();
    quoteTimer.startRepeating(3s, [this] { fetchQuote(); });
    readHolding();
}

void TZStockDetailController::viewDidDisappear()
{
    KRBaseController::viewDidDisappear();
    quoteTimer.stop();
    age.stop();
}

// The charts.

void TZStockDetailController::readDetail()
{
    setDetailState(DetailState::Reading);
    const auto answered = [this](const Operation &, const QVariantMap &answer) {
        showDetail(answer.value(dataKey).toMap());
    };
    const Operation request = TZTradeTool::getStockDetailWithRequestWithParam(
        {{QStringLiteral("stockCode"), stock.stockCode}}, Success{this, answered}, {});
    connect(request.get(), &RequestOperation::finished, this, [this] {
        if (detailState == DetailState::Reading)
            setDetailState(DetailState::Failed);
    });
}

void TZStockDetailController::refreshDetail()
{
    if (refreshing || detailState != DetailState::Ready)
        return;
    refreshing = true;
    const auto answered = [this](const Operation &, const QVariantMap &answer) {
        showDetail(answer.value(dataKey).toMap());
    };
    const Operation request = TZTradeTool::refreshStockDetailWithParam(
        {{QStringLiteral("stockCode"), stock.stockCode}}, Success{this, answered}, {});
    connect(request.get(), &RequestOperation::finished, this, [this] { refreshing = false; });
}

void TZStockDetailController::reloadData()
{
    if (detailState == DetailState::Failed)
        readDetail();
}

void TZStockDetailController::showDetail(const QVariantMap &data)
{
    detailMinute = std::max(detailMinute, integerValue(data.value(QStringLiteral("time"))) / minute);
    quotesSinceDetail = 0;
    takeQuote(data);
    const QVariant minutes = data.value(QStringLiteral("minutes"));
    knowsMinutes = minutes.typeId() == QMetaType::QVariantList;
    intradayChart.setDay(Series::minutes(minutes), quote.measures());
    candleChart.setCandles(Series::candles(data.value(QStringLiteral("candles"))));
    setDetailState(DetailState::Ready);
}

void TZStockDetailController::setDetailState(DetailState state)
{
    detailState = state;
    Q_EMIT chartsChanged();
}

StockChart *TZStockDetailController::chart()
{
    if (shownChart == Candles)
        return &candleChart;
    return &intradayChart;
}

void TZStockDetailController::selectChart(int index)
{
    const int chosen = std::clamp(index, static_cast<int>(Intraday), static_cast<int>(Candles));
    if (chosen == shownChart)
        return;
    shownChart = chosen;
    Q_EMIT chartIndexChanged();
    Q_EMIT chartsChanged();
}

// The quote.

void TZStockDetailController::fetchQuote()
{
    const int number = ++askedQuotes;
    const auto answered = [this, number](const Operation &operation, const QVariantMap &answer) {
        if (number <= shownQuote || !operation->succeeded)
            return;
        shownQuote = number;
        const QVariantMap data = answer.value(dataKey).toMap();
        takeQuote(data);
        const qint64 time = integerValue(data.value(QStringLiteral("time")));
        intradayChart.setPrice(quote.price());
        candleChart.setPrice(quote.price(), Series::dayNumber(time));
        if (++quotesSinceDetail < quotesPerDetail && time / minute <= detailMinute)
            return;
        detailMinute = std::max(detailMinute, time / minute);
        refreshDetail();
    };
    // One failure is told; after it the age of the quote says enough.
    const auto read = quoteRequest.isSilent() ? TZTradeTool::readTimelyInfoWithStockCode
                                              : TZTradeTool::getTimelyInfoWithStockCode;
    quoteRequest.sent(read(stock.stockCode, Success{this, answered}, {}));
}

void TZStockDetailController::takeQuote(const QVariantMap &data)
{
    if (OrderBook::isQuote(data))
        age.restart();
    quote.take(data);
    figureRows.setRows(quote.figures());
    drawBook(data);
    Q_EMIT quoteChanged();
}

void TZStockDetailController::drawBook(const QVariantMap &data)
{
    const auto read = [&data](const QString &key, const QString &side, QList<TZHandicapModel> &levels) {
        const QVariant pankou = data.value(key);
        if (levels.isEmpty() || pankou.typeId() == QMetaType::QVariantList)
            levels = OrderBook::bestFirst(pankou.toList(), side);
    };
    read(QStringLiteral("buyPankou"), QStringLiteral("买"), buyLevels);
    read(QStringLiteral("sellPankou"), QStringLiteral("卖"), sellLevels);
    const auto scale = TZHandicapView::Scale::of(buyLevels, sellLevels, quote.previousClose());
    buyView.setLevels(buyLevels, scale);
    sellView.setLevels(sellLevels, scale);
}

// The holding and order entry.

void TZStockDetailController::readHolding()
{
    if (!Service::isLogin())
        return;
    const auto answered = [this](const Operation &, const QVariantMap &answer) {
        const QVariantMap data = answer.value(dataKey).toMap();
        const auto holdings = fromArray<TZZorvanePageStocksModel>(data.value(QStringLiteral("stocks")));
        const auto own = std::find_if(holdings.begin(), holdings.end(), [this](const auto &holding) {
            return holding.stockCode == stock.stockCode;
        });
        TZZorvanePageStocksModel nothing;
        nothing.stockCode = stock.stockCode;
        nothing.stockName = stock.stockName;
        showHolding(own == holdings.end() ? nothing : *own);
    };
    TZTradeTool::getZorvanePageWithParam({}, Success{this, answered}, {});
}

void TZStockDetailController::showHolding(const TZZorvanePageStocksModel &holding)
{
    const QString name = stock.stockName;
    stock = holding;
    stock.stockName = name;
    holdingRows.setRows(figuresOf(stock));
    const double cost = isHeld(stock) ? doubleValue(stock.costPerShare) : 0;
    intradayChart.setCost(cost);
    candleChart.setCost(cost);
    Q_EMIT holdingChanged();
}

bool TZStockDetailController::canSell() const
{
    return isHeld(stock);
}

void TZStockDetailController::buy()
{
    if (!isInFront())
        return;
    TZZorvanePageStocksModel bought;
    bought.stockCode = stock.stockCode;
    bought.stockName = stock.stockName;
    navigationController()->push(std::make_unique<TZBuyAndSellController>(OrderSide::Buy, bought));
}

void TZStockDetailController::sell()
{
    if (canSell() && isInFront())
        navigationController()->push(std::make_unique<TZBuyAndSellController>(OrderSide::Sell, stock));
}
