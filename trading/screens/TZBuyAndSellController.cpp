#include "trading/screens/TZBuyAndSellController.h"

#include "core/net/ToolPolicy.h"
#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/platform/SettingsStore.h"
#include "core/session/SettingsKeys.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRWindow.h"
#include "core/util/Service.h"
#include "core/util/Text.h"
#include "trading/api/TZBuyPageModel.h"
#include "trading/api/TZStockInfoModel.h"
#include "trading/api/TZTradeTool.h"
#include "trading/screens/TZSelectStockController.h"
#include "trading/screens/TradeTexts.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {
const QString dataKey = QStringLiteral("data");

/// The service did not accept the order without the right trade password.
bool wantsTradePassword(const SentOrder &sent)
{
    const qint64 code = integerValue(sent.answer.value(QStringLiteral("code")));
    return sent.outcome == OrderOutcome::NotPlaced && (code == 12000 || code == 12002);
}
} // namespace

TZBuyAndSellController::TZBuyAndSellController(OrderSide orderSide, TZZorvanePageStocksModel tradedStock,
                                               const QObject *owner, HoldingsDelegate *holdingsDelegate)
    : side(orderSide), texts(OrderTexts::of(orderSide)), stock(std::move(tradedStock)), delegateOwner(owner),
      delegate(holdingsDelegate), stockSelectable(Service::whetherAnEmptyString(stock.stockCode))
{
    forgetQuotes();
}

QString TZBuyAndSellController::stockText() const
{
    return Service::whetherAnEmptyString(stock.stockCode)
               ? QString()
               : TradeTexts::stock(stock.stockName, stock.stockCode);
}

QString TZBuyAndSellController::currentPriceText() const
{
    return latestPrice.isEmpty() ? QString() : QStringLiteral("现价%1").arg(latestPrice);
}

void TZBuyAndSellController::viewDidLoad()
{
    KRBaseController::viewDidLoad();
    setShowBackButton(true);
    Platform::current().notifications.observe(
        this, TZHandicapView::priceSelectNotification, [this](const QVariant &information) {
            // Covered, the price is meant for the order entry on top.
            if (shown)
                selectPrice(textForm(information.toMap().value(QStringLiteral("price"))));
        });
    countHolding();
    if (window())
        OrderDialogs::lookQuietly(*window(), 0s);
    getBuyPage();
}

void TZBuyAndSellController::viewWillAppear()
{
    KRBaseController::viewWillAppear();
    shown = true;
    setTitle(texts.title);
    if (!isBuyType() || !Service::whetherAnEmptyString(stock.stockCode))
        startQuoteTimer();
    if (std::exchange(covered, false))
        askForMissingMoney();
    if (orderOnItsWay)
        showWaitingView();
}

void TZBuyAndSellController::viewDidDisappear()
{
    KRBaseController::viewDidDisappear();
    shown = false;
    covered = true;
    quoteTimer.stop();
    age.stop();
    if (orderTimer.isActive()) {
        orderTimer.stop();
        Service::showErrorWithMsg(QStringLiteral("委托没有提交，请重新提交"));
    }
}

void TZBuyAndSellController::getBuyPage()
{
    const auto answered = [this](const Operation &, const QVariantMap &answer) {
        const QString money = fromDictionary<TZBuyPageModel>(answer).data;
        if (Service::whetherAnEmptyString(money))
            return;
        usable = doubleValue(money);
        // A price may have been typed or tapped before the answer came.
        if (isBuyType() && !Service::whetherAnEmptyString(priceField))
            countTypedPrice();
    };
    const Operation operation = TZTradeTool::getBuyPageWithParam({}, Success{this, answered}, {});
    readingMoney = operation != nullptr;
    if (!operation)
        return;
    connect(operation.get(), &RequestOperation::finished, this, [this] { readingMoney = false; });
    keepWaitingAfter(operation);
}

void TZBuyAndSellController::askForMissingMoney()
{
    if (isBuyType() && !usable && !readingMoney)
        getBuyPage();
}

// The stock.

void TZBuyAndSellController::gotoSelectStock()
{
    if (!stockSelectable || !isInFront())
        return;
    // Before the search takes the keyboard: once it is on top, what is being edited is the search's.
    endEditing();
    navigationController()->push(std::make_unique<TZSelectStockController>(this, this));
}

void TZBuyAndSellController::chooseStock(const TZStockInfoModel &chosen)
{
    stockSelectable = false;
    stock = {};
    stock.stockCode = chosen.c;
    stock.stockName = chosen.n;
    Q_EMIT stockChanged();
    clearFields();
    // The book of one stock never stands under the name of another.
    forgetQuotes();
    // Covered by the stock search the timer starts with the next appearance.
    if (shown)
        startQuoteTimer();
}

// The quote.

void TZBuyAndSellController::startQuoteTimer()
{
    age.start();
    fetchQuote();
    quoteTimer.startRepeating(3s, [this] { fetchQuote(); });
}

void TZBuyAndSellController::fetchQuote()
{
    const int number = ++askedQuotes;
    const auto answered = [this, number](const Operation &operation, const QVariantMap &answer) {
        if (number <= shownQuote || !operation->succeeded)
            return;
        shownQuote = number;
        answeredAt = std::max(answeredAt, operation->answeredAt);
        showQuote(answer.value(dataKey).toMap());
    };
    // One failure is told; after it the age of the quote says enough.
    const auto read = quoteRequest.isSilent() || orderOnItsWay ? TZTradeTool::readTimelyInfoWithStockCode
                                                               : TZTradeTool::getTimelyInfoWithStockCode;
    const Operation operation = read(stock.stockCode, Success{this, answered}, {});
    quoteRequest.sent(operation);
    keepWaitingAfter(operation);
}

void TZBuyAndSellController::showQuote(const QVariantMap &data)
{
    if (OrderBook::isQuote(data))
        age.restart();
    const QString match = textForm(data.value(QStringLiteral("match")));
    if (!Service::whetherAnEmptyString(match)) {
        latestPrice = match;
        Q_EMIT currentPriceChanged();
    }
    if (const qint64 time = OrderIntent::serviceTime(data.value(QStringLiteral("time"))); time > 0)
        quotedAt = time;
    previousClose = doubleValue(data.value(QStringLiteral("previousClose")));
    const QVariant buyPankou = data.value(QStringLiteral("buyPankou"));
    if (buyPankou.typeId() == QMetaType::QVariantList)
        buyLevels = OrderBook::buyLevels(buyPankou.toList());
    const QVariant sellPankou = data.value(QStringLiteral("sellPankou"));
    if (sellPankou.typeId() == QMetaType::QVariantList)
        sellLevels = OrderBook::sellLevels(sellPankou.toList());
    drawBook();
}

void TZBuyAndSellController::forgetQuotes()
{
    shownQuote = askedQuotes;
    age.forget();
    latestPrice.clear();
    Q_EMIT currentPriceChanged();
    buyLevels = OrderBook::buyLevels({});
    sellLevels = OrderBook::sellLevels({});
    drawBook();
}

void TZBuyAndSellController::drawBook()
{
    const auto scale = TZHandicapView::Scale::of(buyLevels, sellLevels, previousClose);
    buyView.setLevels(buyLevels, scale);
    sellView.setLevels(sellLevels, scale);
}

// Price, quantity, and how many shares they may be.

void TZBuyAndSellController::editPrice(const QString &edited)
{
    const QString text = edited.trimmed();
    if (text == priceField || !OrderEntryRules::acceptsPrice(text))
        return;
    setPrice(text);
    // A running count sees this edit too; started anew by each edit it would wait for the end of the typing.
    if (isBuyType() && !countTimer.isActive())
        countTimer.startOnce(100ms, [this] { countTypedPrice(); });
}

void TZBuyAndSellController::editQuantity(const QString &edited)
{
    const QString text = edited.trimmed();
    if (text != quantityField && OrderEntryRules::acceptsQuantity(text))
        setQuantity(OrderEntryRules::cutQuantity(text), -1);
}

void TZBuyAndSellController::selectPrice(const QString &price)
{
    // The service may write it in groups, which nobody could type.
    setPrice(QString(price).remove(u','));
    const double yuan = doubleValue(price);
    if (isBuyType() && yuan != 0)
        countAffordable(yuan);
}

void TZBuyAndSellController::countTypedPrice()
{
    const double yuan = doubleValue(priceField);
    if (yuan != 0)
        countAffordable(yuan);
    else
        // Kept on purpose: the limit stays that of the last price.
        setCountLabel({});
}

void TZBuyAndSellController::countAffordable(double price)
{
    if (!usable)
        return setCountLabel({});
    limit = OrderEntryRules::affordableShares(*usable, price);
    setCountLabel(texts.count.arg(limit));
}

void TZBuyAndSellController::countHolding()
{
    if (isBuyType() || !isLimitKnown())
        return;
    limit = integerValue(stock.availableShares);
    setCountLabel(texts.count.arg(stock.availableShares));
}

void TZBuyAndSellController::selectFraction(int tag)
{
    if (tag < OrderEntryRules::Quarter || tag > OrderEntryRules::All)
        return;
    if (isBuyType() && Service::whetherAnEmptyString(priceField))
        setQuantity(QStringLiteral("0"), tag);
    // The service may tell of a debt; what would be written for it nobody could type.
    const qint64 shares =
        OrderEntryRules::fractionOf(std::max<qint64>(limit, 0), static_cast<OrderEntryRules::Fraction>(tag));
    setQuantity(QString::number(shares), tag);
}

void TZBuyAndSellController::setPrice(const QString &price)
{
    priceField = price;
    Q_EMIT priceChanged();
}

void TZBuyAndSellController::setQuantity(const QString &quantity, int writtenBy)
{
    quantityField = quantity;
    fraction = writtenBy;
    Q_EMIT quantityChanged();
}

void TZBuyAndSellController::clearFields()
{
    setQuantity({}, -1);
    setPrice({});
    if (isBuyType())
        setCountLabel({});
}

void TZBuyAndSellController::setCountLabel(const QString &label)
{
    countLabel = label;
    Q_EMIT countChanged();
}

// The order.

QString TZBuyAndSellController::fault() const
{
    if (Service::whetherAnEmptyString(stock.stockCode))
        return texts.noStock;
    if (Service::whetherAnEmptyString(priceField))
        return texts.noPrice;
    if (Service::whetherAnEmptyString(quantityField))
        return texts.noQuantity;
    const qint64 shares = integerValue(quantityField);
    if (!Service::isMultipleOfOneHundred(shares))
        return texts.notWholeLots;
    if (!isLimitKnown())
        return texts.noLimit;
    return shares > limit ? QStringLiteral("超过交易数量上限") : QString();
}

bool TZBuyAndSellController::isLimitKnown() const
{
    return isBuyType() ? usable.has_value() : !Service::whetherAnEmptyString(stock.availableShares);
}

OrderIntent TZBuyAndSellController::entry() const
{
    OrderIntent order;
    order.side = side;
    order.stockCode = stock.stockCode;
    order.stockName = stock.stockName;
    order.price = priceField;
    order.shares = quantityField;
    order.quotedAt = quotedAt > 0 ? quotedAt : answeredAt;
    return order;
}

bool TZBuyAndSellController::isInDoubt(const OrderIntent &order) const
{
    const bool wanted = wantedAgain && wantedAgain->isSameOrder(order);
    return !wanted && !UnknownOrders::like(order).isEmpty();
}

void TZBuyAndSellController::askAboutUnknownOrders(const OrderIntent &order)
{
    const auto again = [this, order] {
        wantedAgain = order;
        passOn();
    };
    if (window())
        OrderDialogs::ask(*window(), order, ways(), OwnedAction{this, again});
}

bool TZBuyAndSellController::needTradePwd() const
{
    return boolValue(Platform::current().settings.value(SettingsKeys::needTradePwd));
}

void TZBuyAndSellController::submit()
{
    const bool asking = prompt && window() && window()->dialogs()->contains(prompt);
    if (orderOnItsWay || asking)
        return;
    orderTimer.stop();
    wantedAgain.reset();
    wantsPassword.reset();
    askForMissingMoney();
    if (const QString message = fault(); !message.isEmpty())
        Service::showErrorWithMsg(message);
    else if (const OrderIntent order = entry(); isInDoubt(order))
        askAboutUnknownOrders(order);
    else
        passOn();
}

void TZBuyAndSellController::passOn()
{
    if (needTradePwd())
        showTradePwdPrompt();
    else
        orderTimer.startOnce(500ms, [this] { sendOrder({}); });
}

void TZBuyAndSellController::showTradePwdPrompt()
{
    endEditing();
    if (window())
        prompt = TZTradePwdAlertView::showAlertView(*window(), *this, *this);
}

void TZBuyAndSellController::checkTradePwd(const QString &password)
{
    if (Service::whetherAnEmptyString(password))
        Service::showErrorWithMsg(QStringLiteral("请输入交易密码"));
    else
        // The prompt hid itself before it handed the password over.
        sendOrder(password);
}

void TZBuyAndSellController::sendOrder(const QString &password)
{
    if (orderOnItsWay)
        return;
    // The entry may have been edited since it was checked.
    if (const QString message = fault(); !wantsPassword && !message.isEmpty())
        return Service::showErrorWithMsg(message);
    const OrderIntent order = std::exchange(wantsPassword, {}).value_or(entry());
    if (isInDoubt(order))
        return askAboutUnknownOrders(order);
    endEditing();
    setOrderOnItsWay(true);
    // The outcome is told by the window: what lies over this screen may lead away from it meanwhile.
    const auto told = [host = window(), screen = QPointer(this), ways = ways(),
                       hadPassword = !password.isEmpty()](const Operation &, const SentOrder &sent) {
        if (!screen || !wantsTradePassword(sent))
            OrderDialogs::tellOutcome(*host, sent, ways);
        else if (screen->isInFront())
            screen->askForTradePwd(sent, hadPassword);
        else
            // The prompt does not say for which order, and what covers the screen is none of it.
            OrderDialogs::tellOutcome(*host, sent, {});
    };
    const Operation operation = UnknownOrders::send(order, password, UnknownOrders::Told{window(), told});
    connect(operation.get(), &RequestOperation::finished, this, [this] { setOrderOnItsWay(false); });
    // A reading from before does not know of this order; one later may know of those that are late.
    if (window())
        OrderDialogs::lookQuietly(*window(), 30s);
}

void TZBuyAndSellController::setOrderOnItsWay(bool onItsWay)
{
    orderOnItsWay = onItsWay;
    Q_EMIT barChanged();
}

void TZBuyAndSellController::keepWaitingAfter(const Operation &read)
{
    connect(read.get(), &RequestOperation::finished, this, [this] {
        if (orderOnItsWay && shown)
            showWaitingView();
    });
}

void TZBuyAndSellController::askForTradePwd(const SentOrder &sent, bool hadPassword)
{
    if (hadPassword && Service::whetherAnEmptyString(ToolPolicy::message(sent.answer)))
        Service::showErrorWithMsg(QStringLiteral("交易密码不正确，请重试"));
    wantsPassword = sent.order;
    showTradePwdPrompt();
}

void TZBuyAndSellController::orderPlaced()
{
    clearFields();
    if (isBuyType() || !delegateOwner)
        return;
    delegate->reloadHoldingData();
    // The list reads below the result: its indicator would lie over that.
    Service::hideWaitingProgressView();
}

OrderWays TZBuyAndSellController::ways()
{
    return {OwnedAction{this, [this] { orderPlaced(); }}, OwnedAction{this, [this] { backButtonClicked(); }},
            OwnedAction{this, [this] { goOn(); }}};
}

void TZBuyAndSellController::goOn()
{
    KRNavigationController *const stack = navigationController();
    if (!stack)
        return;
    if (isBuyType())
        stack->push(std::make_unique<TZSelectStockController>(this, this));
    else if (stack->depth() > 1)
        stack->popTo(stack->at(1));
}
