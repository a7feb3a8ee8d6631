#include "trading/screens/OrderEntryRules.h"

#include "core/util/Text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
constexpr qsizetype longestPrice = 12;
constexpr qsizetype longestQuantity = 8;
constexpr qsizetype priceDecimals = 2;
constexpr qint64 lot = 100;

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}
} // namespace

const OrderTexts &OrderTexts::of(OrderSide side)
{
    static const OrderTexts buy{QStringLiteral("买入"),
                                QStringLiteral("请输入买入价"),
                                QStringLiteral("请输入买入数量"),
                                QStringLiteral("请输入股票代码"),
                                QStringLiteral("请输入买入价格"),
                                QStringLiteral("请输入买入数量"),
                                QStringLiteral("买入数量须为100的整数倍"),
                                QStringLiteral("正在获取可用资金，请稍后再试"),
                                QStringLiteral("         当前可买入%1股"),
                                QStringLiteral("继续买入")};
    // Kept on purpose: a missing stock is worded differently on this side.
    static const OrderTexts sell{QStringLiteral("卖出"),
                                 QStringLiteral("请输入卖出价"),
                                 QStringLiteral("请输入卖出数量"),
                                 QStringLiteral("请输入正确的股票代码"),
                                 QStringLiteral("请输入卖出价格"),
                                 QStringLiteral("请输入卖出数量"),
                                 QStringLiteral("卖出数量须为100的整数倍"),
                                 QStringLiteral("没有可卖数量，请重新选择持仓"),
                                 QStringLiteral("         当前可卖出%1股"),
                                 QStringLiteral("继续卖出")};
    return side == OrderSide::Buy ? buy : sell;
}

bool OrderEntryRules::acceptsPrice(const QString &text)
{
    const qsizetype point = text.indexOf(u'.');
    const bool fitting =
        text.size() <= longestPrice && (point < 0 || text.size() - point - 1 <= priceDecimals);
    return fitting && text.count(u'.') <= 1 &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return isDigit(c) || c == u'.'; });
}

bool OrderEntryRules::acceptsQuantity(const QString &text)
{
    return std::all_of(text.begin(), text.end(), isDigit);
}

QString OrderEntryRules::cutQuantity(const QString &text)
{
    return text.left(longestQuantity);
}

qint64 OrderEntryRules::affordableShares(double money, double price)
{
    const double shares = money / price;
    const double nearest = std::round(shares);
    // Both operands and the division are each off by half a unit in the last place at most.
    const double binaryError = 2 * std::numeric_limits<double>::epsilon() * std::abs(shares);
    return integerValue(std::abs(shares - nearest) <= binaryError ? nearest : shares);
}

QStringList OrderEntryRules::fractionTitles()
{
    return {QStringLiteral("1/%1").arg(4), QStringLiteral("1/%1").arg(2), QStringLiteral("全部")};
}

qint64 OrderEntryRules::fractionOf(qint64 totalCount, Fraction fraction)
{
    const auto lotsOf = [totalCount](double part) {
        return static_cast<qint64>(static_cast<double>(totalCount) * part / static_cast<double>(lot));
    };
    switch (fraction) {
    case Quarter:
        return lotsOf(0.25) * lot;
    case Half:
        return lotsOf(0.5) * lot;
    case All:
        break;
    }
    return totalCount / lot * lot;
}
