#pragma once

#include "core/net/Callbacks.h"

/// The trading, quote and fund-movement endpoints. A failure only passes on what the HTTP client reported.
/// How an answer reaches `success`:
/// - cached: without a network the stored copy, if there is one, with a null operation and nothing sent;
/// otherwise the
///   answer whose "success" is true, after it was stored;
/// - guarded: an answer whose "success" is true;
/// - passed: every answer; the caller reads "success", "code" and "data".
/// "HUD": shows the waiting indicator before it sends and hides it before `success`.
class TZTradeTool {
public:
    TZTradeTool() = delete;

    /// The settings keys of the stored copies.
    static inline const QString zorvanePageKey = QStringLiteral("ZorvanePage");
    static inline const QString buyPageKey = QStringLiteral("BuyPage");
    static inline const QString holdingKey = QStringLiteral("Holding");
    static inline const QString callBackPageKey = QStringLiteral("CallBackPage");
    static inline const QString detailsTodayKey = QStringLiteral("DetailsToday");
    static inline const QString entrustsTodayKey = QStringLiteral("EntrustsToday");

    /// Cached.
    static Operation getZorvanePageWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Cached, HUD. "data" is a number: the yuan usable for buying.
    static Operation getBuyPageWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Passed, HUD. Keys: "stockCode", "entrustShares", "entrustPrice", "tradePassword" when typed. Accepted
    /// when "data"."id" is not empty; "code" 12000 or 12002 asks for the trade password.
    static Operation postCreatBuyWithParam(const QVariantMap &param, Success success, Failure andError);
    /// As `postCreatBuyWithParam`.
    static Operation postCreatSellWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Guarded. No screen uses it.
    static Operation postQueryEntrustNoWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Cached, HUD. Its caller passes one entry whose key and value are both "".
    static Operation getHoldingWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Cached, HUD.
    static Operation getCallBackPageWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Guarded, HUD. Kept on purpose: on success the indicator stays, the cancellation is still being waited
    /// for. Keys: "tradeEntrustNo".
    static Operation postCreateCancelWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Guarded. Keys: "id".
    static Operation postQueryWithDrawStatusWithParam(const QVariantMap &param, Success success,
                                                      Failure andError);
    /// The same without a word.
    static Operation askWithDrawStatusWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Cached, HUD. Keys: "page".
    static Operation getDetailsTodayWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Cached, HUD. Keys: "page".
    static Operation getEntrustsTodayWithParam(const QVariantMap &param, Success success, Failure andError);
    /// The same without a word, for what nobody on the screen has asked for: guarded, nothing is stored, and
    /// only the user who asked is answered. Keys: "page".
    static Operation readEntrustsTodayWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Guarded, HUD.
    static Operation getWarnInfoWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Passed. "data" has "match", the latest traded price or "", and "buyPankou" and "sellPankou", ten
    /// levels each.
    static Operation getTimelyInfoWithStockCode(const QString &stockCode, Success success, Failure andError);
    /// The same without a word.
    static Operation readTimelyInfoWithStockCode(const QString &stockCode, Success success, Failure andError);
    /// Guarded, HUD.
    static Operation getTradeRechargeWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Passed, HUD.
    static Operation postTradeRechargeWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Passed, HUD; kept on purpose: the indicator stays until its caller hides it.
    static Operation postVerifyRechargeWithParam(const QVariantMap &param, Success success, Failure andError);
    /// Guarded, HUD.
    static Operation getShowWithdrawInfoWithParam(const QVariantMap &param, Success success,
                                                  Failure andError);
    /// Passed, HUD.
    static Operation postVerfyWithdrawCodeWithParam(const QVariantMap &param, Success success,
                                                    Failure andError);
    /// Guarded. Kept on purpose: a GET. Keys: "orderId".
    static Operation postQueryOrderStatusWithParam(const QVariantMap &param, Success success,
                                                   Failure andError);
    /// Guarded, HUD. Keys: "stockCode".
    static Operation getStockDetailWithRequestWithParam(const QVariantMap &param, Success success,
                                                        Failure andError);
    /// As `getStockDetailWithRequestWithParam` without HUD, for a page that is seen already.
    static Operation refreshStockDetailWithParam(const QVariantMap &param, Success success, Failure andError);
};
