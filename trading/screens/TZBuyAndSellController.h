#pragma once

#include "core/net/Callbacks.h"
#include "core/platform/Timer.h"
#include "core/shell/KRBaseController.h"
#include "core/shell/TZTradePwdAlertView.h"
#include "trading/api/TZZorvanePageStocksModel.h"
#include "trading/screens/HoldingsDelegate.h"
#include "trading/screens/OrderBook.h"
#include "trading/screens/OrderDialogs.h"
#include "trading/screens/OrderEntryRules.h"
#include "trading/screens/QuoteAge.h"
#include "trading/screens/RepeatedRequest.h"
#include "trading/screens/StockChooser.h"
#include "trading/screens/TZHandicapView.h"

#include <QPointer>

/// Order entry, one screen for both sides: a limit order for a stock, typed beside its live order book.
class TZBuyAndSellController : public KRBaseController, public StockChooser, public TZTradePwdAlertDelegate {
    Q_OBJECT
    Q_PROPERTY(bool isBuyType READ isBuyType CONSTANT)
    /// "name(code)", "" while there is no stock.
    Q_PROPERTY(QString stockText READ stockText NOTIFY stockChanged)
    Q_PROPERTY(QString stockPlaceholder READ stockPlaceholder CONSTANT)
    Q_PROPERTY(bool canGotoStockSelect READ canGotoStockSelect NOTIFY stockChanged)
    /// What is typed; an edit that is refused leaves it as it was.
    Q_PROPERTY(QString price READ price WRITE editPrice NOTIFY priceChanged)
    Q_PROPERTY(QString pricePlaceholder READ pricePlaceholder CONSTANT)
    /// "" until a quote brought a price.
    Q_PROPERTY(QString currentPriceText READ currentPriceText NOTIFY currentPriceChanged)
    Q_PROPERTY(QString quantity READ quantity WRITE editQuantity NOTIFY quantityChanged)
    Q_PROPERTY(QString quantityPlaceholder READ quantityPlaceholder CONSTANT)
    /// "" while nobody knows how many shares they may be.
    Q_PROPERTY(QString countText READ countText NOTIFY countChanged)
    Q_PROPERTY(QStringList fractionTitles READ fractionTitles CONSTANT)
    /// The tag of the quick button that wrote the quantity, -1 for none.
    Q_PROPERTY(int selectedFraction READ selectedFraction NOTIFY quantityChanged)
    Q_PROPERTY(TZHandicapView *sellHandicapView READ sellHandicapView CONSTANT)
    Q_PROPERTY(TZHandicapView *buyHandicapView READ buyHandicapView CONSTANT)
    Q_PROPERTY(QuoteAge *quoteAge READ quoteAge CONSTANT)
    Q_PROPERTY(QString submitTitle READ submitTitle CONSTANT)
public:
    /// For selling `stock` is the holding; for buying it needs no more than `stockCode` and `stockName`, or
    /// is empty: then the user searches for one. `delegate` is told of accepted sales and lives as long as
    /// `delegateOwner`.
    explicit TZBuyAndSellController(OrderSide side, TZZorvanePageStocksModel stock = {},
                                    const QObject *delegateOwner = nullptr,
                                    HoldingsDelegate *delegate = nullptr);

    bool isBuyType() const { return side == OrderSide::Buy; }
    QString stockText() const;
    QString stockPlaceholder() const { return QStringLiteral("请输入股票代码或拼音"); }
    bool canGotoStockSelect() const { return stockSelectable; }
    QString price() const { return priceField; }
    QString pricePlaceholder() const { return texts.pricePlaceholder; }
    QString currentPriceText() const;
    QString quantity() const { return quantityField; }
    QString quantityPlaceholder() const { return texts.quantityPlaceholder; }
    QString countText() const { return countLabel; }
    QStringList fractionTitles() const { return OrderEntryRules::fractionTitles(); }
    int selectedFraction() const { return fraction; }
    TZHandicapView *sellHandicapView() { return &sellView; }
    TZHandicapView *buyHandicapView() { return &buyView; }
    QuoteAge *quoteAge() { return &age; }
    QString submitTitle() const { return texts.title; }

    const TZZorvanePageStocksModel &zorvanePageStocksModel() const { return stock; }
    /// 0 until it is known.
    double useableAmount() const { return usable.value_or(0); }
    qint64 totalCount() const { return limit; }
    QString currentPrice() const { return latestPrice; }
    const QList<TZHandicapModel> &buyArr() const { return buyLevels; }
    const QList<TZHandicapModel> &sellArr() const { return sellLevels; }

    /// Blanks around what is pasted are dropped.
    void editPrice(const QString &edited);
    void editQuantity(const QString &edited);
    Q_INVOKABLE void gotoSelectStock();
    Q_INVOKABLE void selectFraction(int tag);
    /// Stays while an order is on its way: its outcome must be seen.
    bool canBeLeft() const override { return !orderOnItsWay; }
    /// Checks the entry and sends the order, with the trade password when it is needed. Does nothing while an
    /// order is on its way or the password is being asked for.
    Q_INVOKABLE void submit();

    void chooseStock(const TZStockInfoModel &chosen) override;
    void checkTradePwd(const QString &password) override;

    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewDidDisappear() override;

Q_SIGNALS:
    void stockChanged();
    void priceChanged();
    void currentPriceChanged();
    void quantityChanged();
    void countChanged();

private:
    void getBuyPage();
    /// What a buy page did not tell for want of an answer.
    void askForMissingMoney();
    void startQuoteTimer();
    void fetchQuote();
    void showQuote(const QVariantMap &data);
    void forgetQuotes();
    void drawBook();

    void setPrice(const QString &price);
    void setQuantity(const QString &quantity, int writtenBy);
    void clearFields();
    void setCountLabel(const QString &label);
    void selectPrice(const QString &price);
    void countTypedPrice();
    void countAffordable(double price);
    void countHolding();

    /// What stands against sending the entry as it is now; "" when nothing does.
    QString fault() const;
    bool isLimitKnown() const;
    OrderIntent entry() const;
    /// Whether one like it is of unknown outcome and the user has not yet said to want it once more.
    bool isInDoubt(const OrderIntent &order) const;
    /// Goes on with the submission when the user wants the order once more.
    void askAboutUnknownOrders(const OrderIntent &order);
    bool needTradePwd() const;
    void passOn();
    void showTradePwdPrompt();
    void sendOrder(const QString &password);
    void setOrderOnItsWay(bool onItsWay);
    /// The end of a read may take the indicator away; an order on its way has it back.
    void keepWaitingAfter(const Operation &read);
    void askForTradePwd(const SentOrder &sent, bool hadPassword);
    void orderPlaced();
    OrderWays ways();
    void goOn();

    const OrderSide side;
    const OrderTexts &texts;
    TZZorvanePageStocksModel stock;
    QPointer<const QObject> delegateOwner;
    HoldingsDelegate *delegate;

    bool stockSelectable = true;
    QString priceField;
    QString quantityField;
    QString countLabel;
    int fraction = -1;
    /// None until a buy page has told it.
    std::optional<double> usable;
    bool readingMoney = false;
    qint64 limit = 0;

    QString latestPrice;
    double previousClose = 0;
    /// On the service's clock, as the latest quote says that tells it, and as its answers are dated.
    qint64 quotedAt = 0;
    qint64 answeredAt = 0;
    QList<TZHandicapModel> buyLevels;
    QList<TZHandicapModel> sellLevels;
    TZHandicapView buyView;
    TZHandicapView sellView{OrderBook::bestSellRow};
    QuoteAge age;

    bool shown = false;
    bool covered = false;
    Timer quoteTimer;
    Timer countTimer;
    Timer orderTimer;
    /// Quotes are counted as they are asked for; what answers later than a newer one, or for an earlier
    /// stock, is dropped.
    int askedQuotes = 0;
    int shownQuote = 0;
    RepeatedRequest quoteRequest;
    QPointer<TZTradePwdAlertView> prompt;
    bool orderOnItsWay = false;
    /// The order that the user wants although one like it is of unknown outcome.
    std::optional<OrderIntent> wantedAgain;
    /// The order that the service refused for want of the trade password: that one is sent with it, whatever
    /// the entry says by then.
    std::optional<OrderIntent> wantsPassword;
};
