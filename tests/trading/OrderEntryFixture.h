#pragma once

#include "core/session/SettingsKeys.h"
#include "core/util/Service.h"
#include "tests/trading/TradingFixture.h"
#include "trading/api/TZStockInfoModel.h"
#include "trading/screens/TZBuyAndSellController.h"
#include "trading/screens/TZSelectStockController.h"

inline const QString buyPath = "entrust/createBuy";
inline const QString sellPath = "entrust/createSell";
inline const QString quotePath = "timelyInfo/timelyOrderForm";

inline TZStockInfoModel stock(const QString &code, const QString &name)
{
    return {code, name, QString()};
}

inline QVariantMap quote(const QVariant &match, double best = 12.34)
{
    QVariantList levels;
    for (int i = 0; i < 10; ++i)
        levels.append(
            QVariantMap{{"price", QString::number(best + i / 100.0, 'f', 2)}, {"volume", 100 * (i + 1)}});
    return succeeded(QVariantMap{{"match", match}, {"buyPankou", levels}, {"sellPankou", levels}});
}

inline QVariantMap placed(const QVariant &id)
{
    return succeeded(QVariantMap{{"id", id}});
}

inline QVariantMap refusedAs(const QVariant &code, const QString &message = {})
{
    QVariantMap answer = refused(message);
    answer.insert("code", code);
    return answer;
}

class HoldingsList : public QObject, public HoldingsDelegate {
public:
    void reloadHoldingData() override
    {
        ++reloads;
        Service::showWaitingProgressView();
    }
    int reloads = 0;
};

/// Order entry of both sides, opened as its callers do.
class OrderEntryTest : public TradingFixture {
protected:
    OrderEntryTest() { settings.setValue(SettingsKeys::needTradePwd, false); }

    void openBuying(const QString &money = "10000.00")
    {
        screen = push<TZBuyAndSellController>(OrderSide::Buy);
        http.answer("buyPage", succeeded(money));
    }
    void openSelling(const QString &available = "1237")
    {
        TZZorvanePageStocksModel holding;
        holding.stockCode = "600001";
        holding.stockName = "海天传媒";
        holding.availableShares = available;
        screen = push<TZBuyAndSellController>(OrderSide::Sell, holding, &holdings, &holdings);
        http.answer("buyPage", succeeded("10000.00"));
    }
    void enter(const QString &price, const QString &quantity)
    {
        screen->editPrice(price);
        runLoop.advance(100ms);
        screen->editQuantity(quantity);
    }
    /// Answers the quote that is asked for three seconds later.
    void quoteNext(const QVariantMap &answer)
    {
        runLoop.advance(3s);
        http.answer(quotePath, answer);
    }
    void openWithEntry()
    {
        openBuying();
        screen->chooseStock(stock("600001", "海天传媒"));
        enter("12.34", "800");
    }
    /// The entry of `openWithEntry`, sent.
    void submitEntry()
    {
        screen->submit();
        runLoop.advance(500ms);
    }
    QString lastBanner() const { return banners().isEmpty() ? QString() : banners().constLast(); }

    HoldingsList holdings;
    TZBuyAndSellController *screen = nullptr;
};
