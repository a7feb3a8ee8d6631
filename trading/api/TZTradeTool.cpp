#include "trading/api/TZTradeTool.h"

#include "core/net/KRAFHTTPClient.h"
#include "core/net/ToolPolicy.h"
#include "core/util/Service.h"
#include "core/util/Text.h"

namespace {
using ToolPolicy::isList;
using ToolPolicy::isObject;
using ToolPolicy::isScalar;
using ToolPolicy::shaped;

bool isPage(const QVariant &data)
{
    return isObject(data) && isList(data.toMap().value(QStringLiteral("stocks")));
}

Operation cached(const QString &path, const QString &key, ToolPolicy::Shape shape, const QVariantMap &param,
                 Success success, Failure andError)
{
    if (ToolPolicy::answersOffline(key, success))
        return nullptr;
    Service::showWaitingProgressView();
    return KRAFHTTPClient::get(ToolPolicy::url(path), param,
                               shaped(shape, ToolPolicy::cached(key, std::move(success))),
                               std::move(andError));
}

QString stockDetailUrl(const QVariantMap &param)
{
    return ToolPolicy::url(QStringLiteral("stockDetailPage?stockCode=")) +
           textForm(param.value(QStringLiteral("stockCode")));
}

QString timelyInfoUrl(const QString &stockCode)
{
    return ToolPolicy::url(QStringLiteral("timelyInfo/timelyOrderForm?stockCode=")) + stockCode;
}

// The smart add-on offer keeps its answer under the trading page's key.
bool isTradingPage(const QVariantMap &answer)
{
    const QVariantMap data = answer.value(QStringLiteral("data")).toMap();
    return data.contains(QStringLiteral("stocks")) || data.contains(QStringLiteral("availableMoney"));
}
} // namespace

Operation TZTradeTool::getZorvanePageWithParam(const QVariantMap &param, Success success, Failure andError)
{
    const auto ownCopy = [success](const Operation &operation, const QVariantMap &answer) {
        if (isTradingPage(answer))
            success(operation, answer);
    };
    if (ToolPolicy::answersOffline(zorvanePageKey, Success::unowned(ownCopy)))
        return nullptr;
    return KRAFHTTPClient::get(ToolPolicy::url(QStringLiteral("zorvanePage")), param,
                               shaped(isPage, ToolPolicy::cached(zorvanePageKey, std::move(success))),
                               std::move(andError));
}

Operation TZTradeTool::getBuyPageWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return cached(QStringLiteral("buyPage"), buyPageKey, isScalar, param, std::move(success),
                  std::move(andError));
}

Operation TZTradeTool::postCreatBuyWithParam(const QVariantMap &param, Success success, Failure andError)
{
    Service::showWaitingProgressView();
    return KRAFHTTPClient::post(ToolPolicy::url(QStringLiteral("entrust/createBuy")), param,
                                ToolPolicy::passed(std::move(success)), std::move(andError));
}

Operation TZTradeTool::postCreatSellWithParam(const QVariantMap &param, Success success, Failure andError)
{
    Service::showWaitingProgressView();
    return KRAFHTTPClient::post(ToolPolicy::url(QStringLiteral("entrust/createSell")), param,
                                ToolPolicy::passed(std::move(success)), std::move(andError));
}

Operation TZTradeTool::postQueryEntrustNoWithParam(const QVariantMap &param, Success success,
                                                   Failure andError)
{
    return KRAFHTTPClient::post(ToolPolicy::url(QStringLiteral("entrust/queryEntrustNo")), param,
                                ToolPolicy::gated(std::move(success), ToolPolicy::Indicator::Keep),
                                std::move(andError));
}

Operation TZTradeTool::getHoldingWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return cached(QStringLiteral("holding"), holdingKey, isList, param, std::move(success),
                  std::move(andError));
}

Operation TZTradeTool::getCallBackPageWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return cached(QStringLiteral("callBackPage"), callBackPageKey, isList, param, std::move(success),
                  std::move(andError));
}

Operation TZTradeTool::postCreateCancelWithParam(const QVariantMap &param, Success success, Failure andError)
{
    Service::showWaitingProgressView();
    return KRAFHTTPClient::post(ToolPolicy::url(QStringLiteral("entrust/createCancel")), param,
                                ToolPolicy::gated(std::move(success), ToolPolicy::Indicator::Keep),
                                std::move(andError));
}

Operation TZTradeTool::postQueryWithDrawStatusWithParam(const QVariantMap &param, Success success,
                                                        Failure andError)
{
    return KRAFHTTPClient::post(ToolPolicy::url(QStringLiteral("entrust/queryWithDrawStatus")), param,
                                ToolPolicy::gated(std::move(success), ToolPolicy::Indicator::Keep),
                                std::move(andError));
}

Operation TZTradeTool::askWithDrawStatusWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return KRAFHTTPClient::postQuietly(ToolPolicy::url(QStringLiteral("entrust/queryWithDrawStatus")), param,
                                       ToolPolicy::gated(std::move(success), ToolPolicy::Indicator::Keep),
                                       std::move(andError));
}

Operation TZTradeTool::getDetailsTodayWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return cached(QStringLiteral("detailsToday"), detailsTodayKey, isList, param, std::move(success),
                  std::move(andError));
}

Operation TZTradeTool::getEntrustsTodayWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return cached(QStringLiteral("entrustsToday"), entrustsTodayKey, isList, param, std::move(success),
                  std::move(andError));
}

Operation TZTradeTool::readEntrustsTodayWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return KRAFHTTPClient::getQuietly(
        ToolPolicy::url(QStringLiteral("entrustsToday")), param,
        ToolPolicy::gated(ToolPolicy::ofSameUser(std::move(success)), ToolPolicy::Indicator::Keep),
        std::move(andError));
}

Operation TZTradeTool::getWarnInfoWithParam(const QVariantMap &param, Success success, Failure andError)
{
    Service::showWaitingProgressView();
    return KRAFHTTPClient::get(ToolPolicy::url(QStringLiteral("warnInfo")), param,
                               ToolPolicy::gated(std::move(success)), std::move(andError));
}

Operation TZTradeTool::getTimelyInfoWithStockCode(const QString &stockCode, Success success, Failure andError)
{
    return KRAFHTTPClient::get(timelyInfoUrl(stockCode), {}, std::move(success), std::move(andError));
}

Operation TZTradeTool::readTimelyInfoWithStockCode(const QString &stockCode, Success success,
                                                   Failure andError)
{
    return KRAFHTTPClient::getQuietly(timelyInfoUrl(stockCode), {}, std::move(success), std::move(andError));
}

Operation TZTradeTool::getTradeRechargeWithParam(const QVariantMap &param, Success success, Failure andError)
{
    Service::showWaitingProgressView();
    return KRAFHTTPClient::get(ToolPolicy::url(QStringLiteral("trade/recharge")), param,
                               ToolPolicy::gated(std::move(success)), std::move(andError));
}

Operation TZTradeTool::postTradeRechargeWithParam(const QVariantMap &param, Success success, Failure andError)
{
    Service::showWaitingProgressView();
    return KRAFHTTPClient::post(ToolPolicy::url(QStringLiteral("trade/recharge")), param,
                                ToolPolicy::passed(std::move(success)), std::move(andError));
}

Operation TZTradeTool::postVerifyRechargeWithParam(const QVariantMap &param, Success success,
                                                   Failure andError)
{
    Service::showWaitingProgressView();
    return KRAFHTTPClient::post(ToolPolicy::url(QStringLiteral("trade/verify_recharge")), param,
                                std::move(success), std::move(andError));
}

Operation TZTradeTool::getShowWithdrawInfoWithParam(const QVariantMap &param, Success success,
                                                    Failure andError)
{
    Service::showWaitingProgressView();
    return KRAFHTTPClient::get(ToolPolicy::url(QStringLiteral("trade/show_withdraw")), param,
                               ToolPolicy::gated(std::move(success)), std::move(andError));
}

Operation TZTradeTool::postVerfyWithdrawCodeWithParam(const QVariantMap &param, Success success,
                                                      Failure andError)
{
    Service::showWaitingProgressView();
    return KRAFHTTPClient::post(ToolPolicy::url(QStringLiteral("trade/withdraw")), param,
                                ToolPolicy::passed(std::move(success)), std::move(andError));
}

Operation TZTradeTool::postQueryOrderStatusWithParam(const QVariantMap &param, Success success,
                                                     Failure andError)
{
    return KRAFHTTPClient::get(ToolPolicy::url(QStringLiteral("trade/query_order_status")), param,
                               ToolPolicy::gated(std::move(success), ToolPolicy::Indicator::Keep),
                               std::move(andError));
}

Operation TZTradeTool::getStockDetailWithRequestWithParam(const QVariantMap &param, Success success,
                                                          Failure andError)
{
    Service::showWaitingProgressView();
    return KRAFHTTPClient::get(stockDetailUrl(param), {}, ToolPolicy::gated(std::move(success)),
                               std::move(andError));
}

Operation TZTradeTool::refreshStockDetailWithParam(const QVariantMap &param, Success success,
                                                   Failure andError)
{
    return KRAFHTTPClient::get(stockDetailUrl(param), {},
                               ToolPolicy::gated(std::move(success), ToolPolicy::Indicator::Keep),
                               std::move(andError));
}
