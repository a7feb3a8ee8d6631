#pragma once

#include "core/platform/Timer.h"
#include "core/shell/KRBaseController.h"
#include "core/shell/MVNoNetView.h"
#include "trading/api/TZZorvanePageStocksModel.h"
#include "trading/charts/CandleChart.h"
#include "trading/charts/IntradayChart.h"
#include "trading/screens/QuoteAge.h"
#include "trading/screens/RepeatedRequest.h"
#include "trading/screens/StockQuote.h"
#include "trading/screens/TZHandicapView.h"

/// A stock: its quote, its order book, the running day and the days before as charts, what the user holds of
/// it, and the doors to both sides of order entry. The quote is read every three seconds while the screen is
/// seen; the charts move with it and are read anew, silently, when the quote's minute is another one.
class TZStockDetailController : public KRBaseController, public MVNoNetViewDelegate {
    Q_OBJECT
    Q_PROPERTY(QString stockText READ stockText CONSTANT)
    Q_PROPERTY(QString stockCode READ stockCode CONSTANT)
    Q_PROPERTY(QString price READ price NOTIFY quoteChanged)
    /// The change since yesterday's close, "" when unknown; `trend` is its sign.
    Q_PROPERTY(QString change READ change NOTIFY quoteChanged)
    Q_PROPERTY(int trend READ trend NOTIFY quoteChanged)
    /// What is special about the stock now, such as "涨停" (`tagTrend` 1), or "".
    Q_PROPERTY(QString tag READ tag NOTIFY quoteChanged)
    Q_PROPERTY(int tagTrend READ tagTrend NOTIFY quoteChanged)
    /// Rows of StockFigure.
    Q_PROPERTY(GadgetListModel *figures READ figures CONSTANT)
    Q_PROPERTY(QuoteAge *quoteAge READ quoteAge CONSTANT)
    Q_PROPERTY(TZHandicapView *sellHandicapView READ sellHandicapView CONSTANT)
    Q_PROPERTY(TZHandicapView *buyHandicapView READ buyHandicapView CONSTANT)
    Q_PROPERTY(QStringList chartTitles READ chartTitles CONSTANT)
    Q_PROPERTY(int chartIndex READ chartIndex NOTIFY chartIndexChanged)
    Q_PROPERTY(StockChart *chart READ chart NOTIFY chartIndexChanged)
    /// In the place of an empty chart, "" otherwise.
    Q_PROPERTY(QString notice READ notice NOTIFY chartsChanged)
    /// Whether `noNet` stands there, which offers to read again.
    Q_PROPERTY(bool canRetry READ canRetry NOTIFY chartsChanged)
    Q_PROPERTY(MVNoNetView *noNet READ noNet CONSTANT)
    /// Rows of StockFigure, none when nothing is held.
    Q_PROPERTY(GadgetListModel *holdingFigures READ holdingFigures CONSTANT)
    Q_PROPERTY(bool canSell READ canSell NOTIFY holdingChanged)
public:
    /// The charts by their index.
    enum Charts { Intraday, Candles };

    /// `stock` needs no more than its code and name; what else it has is the user's holding.
    explicit TZStockDetailController(TZZorvanePageStocksModel stock);

    QString stockText() const;
    QString stockCode() const { return stock.stockCode; }
    QString price() const { return quote.priceText(); }
    QString change() const { return quote.changeText(); }
    int trend() const { return quote.trend(); }
    QString tag() const { return quote.tag(); }
    int tagTrend() const { return quote.tagTrend(); }
    RowListModel<StockFigure> *figures() { return &figureRows; }
    QuoteAge *quoteAge() { return &age; }
    TZHandicapView *sellHandicapView() { return &sellView; }
    TZHandicapView *buyHandicapView() { return &buyView; }
    QStringList chartTitles() const { return {QStringLiteral("分时"), QStringLiteral("日K")}; }
    int chartIndex() const { return shownChart; }
    StockChart *chart();
    IntradayChart *intraday() { return &intradayChart; }
    CandleChart *candles() { return &candleChart; }
    QString notice() const;
    bool canRetry() const { return detailState == DetailState::Failed; }
    MVNoNetView *noNet() { return &noNetPanel; }
    RowListModel<StockFigure> *holdingFigures() { return &holdingRows; }
    bool canSell() const;

    Q_INVOKABLE void selectChart(int index);
    Q_INVOKABLE void buy();
    /// Does nothing while there is nothing to sell.
    Q_INVOKABLE void sell();
    /// Reads the charts again after they could not be had.
    void reloadData() override;

    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewDidDisappear() override;

Q_SIGNALS:
    void quoteChanged();
    void chartIndexChanged();
    void chartsChanged();
    void holdingChanged();

private:
    enum class DetailState { Reading, Ready, Failed };

    void readDetail();
    void refreshDetail();
    void fetchQuote();
    void readHolding();
    void showDetail(const QVariantMap &data);
    void takeQuote(const QVariantMap &data);
    void drawBook(const QVariantMap &data);
    void showHolding(const TZZorvanePageStocksModel &holding);
    void setDetailState(DetailState state);

    TZZorvanePageStocksModel stock;
    StockQuote quote;
    QuoteAge age;
    TZHandicapView buyView;
    TZHandicapView sellView;
    QList<TZHandicapModel> buyLevels;
    QList<TZHandicapModel> sellLevels;
    IntradayChart intradayChart;
    CandleChart candleChart;
    int shownChart = Intraday;
    RowListModel<StockFigure> figureRows;
    RowListModel<StockFigure> holdingRows;
    MVNoNetView noNetPanel{*this};
    DetailState detailState = DetailState::Reading;
    /// Whether the detail told of the running day at all.
    bool knowsMinutes = false;

    Timer quoteTimer;
    /// Quotes are counted as they are asked for; what answers later than a newer one is dropped.
    int askedQuotes = 0;
    int shownQuote = 0;
    RepeatedRequest quoteRequest;
    bool refreshing = false;
    /// The minute since 1970 that the charts were last asked for, and how many quotes came since they came.
    qint64 detailMinute = 0;
    int quotesSinceDetail = 0;
};
