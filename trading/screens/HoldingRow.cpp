#include "trading/screens/HoldingRow.h"

#include "core/util/Amount.h"
#include "core/util/Service.h"
#include "core/util/Text.h"
#include "trading/screens/TradeTexts.h"

namespace {
QString percent(const QString &rate)
{
    return Service::whetherAnEmptyString(rate) || rate.endsWith(u'%') ? rate : rate + u'%';
}
} // namespace

int signOf(const QString &amount)
{
    const double value = doubleValue(amount);
    return (value > 0) - (value < 0);
}

HoldingRow HoldingRow::of(const TZZorvanePageStocksModel &holding)
{
    HoldingRow row{holding.stockName,
                   holding.stockCode,
                   holding.costPerShare,
                   holding.currentPrice,
                   holding.shares,
                   holding.availableShares,
                   labelAmount(holding.profitMoney),
                   percent(holding.profitRate),
                   signOf(holding.profitMoney),
                   {}};
    row.sentence = TradeTexts::sentence(row.name + u' ' + row.code, {{QStringLiteral("成本"), row.cost},
                                                                     {QStringLiteral("现价"), row.price},
                                                                     {QStringLiteral("持仓"), row.shares},
                                                                     {QStringLiteral("可用"), row.available},
                                                                     {QStringLiteral("盈亏"), row.profit},
                                                                     {QString(), row.rate}});
    return row;
}
