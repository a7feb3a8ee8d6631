#pragma once

#include <QString>
#include <QStringList>

enum class OrderSide { Buy, Sell };

/// What order entry says on one of its sides.
struct OrderTexts {
    QString title;
    QString pricePlaceholder;
    QString quantityPlaceholder;
    QString noStock;
    QString noPrice;
    QString noQuantity;
    QString notWholeLots;
    /// Nobody knows how many shares they may be.
    QString noLimit;
    /// Has a "%1" for the number of shares.
    QString count;
    QString continueTitle;

    static const OrderTexts &of(OrderSide side);
};

/// What may be typed into order entry, and its arithmetic. Money in yuan, quantities in shares.
namespace OrderEntryRules {

/// Digits and one point, at most two digits behind it, twelve characters in all.
bool acceptsPrice(const QString &text);
/// Only digits; `cutQuantity` then shortens them.
bool acceptsQuantity(const QString &text);
/// The first eight characters.
QString cutQuantity(const QString &text);

/// What `money` pays for at `price`, truncated to whole shares; `price` is not zero. A quotient that is whole
/// in decimals is not cut because of its binary form: 1234 at 12.34 are 100 shares.
qint64 affordableShares(double money, double price);

/// The quick buttons, by their tags.
enum Fraction { Quarter = 0, Half = 1, All = 2 };
QStringList fractionTitles();
/// The fraction of `totalCount` in whole lots of 100, rounded down.
qint64 fractionOf(qint64 totalCount, Fraction fraction);

} // namespace OrderEntryRules
