#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

/// Money as the display types write it; an empty text stays empty. Kept on purpose: buttons cut to the cent
/// in single precision, labels round in double precision.
QString buttonAmount(const QVariant &amount);
QString buttonAmountWithYuan(const QVariant &amount);
QString labelAmount(const QVariant &amount);
QString labelAmountWithYuan(const QVariant &amount);

/// "%.2f" in the C locale, whatever the device's: an exact tie goes to the even digit.
QString twoDecimals(double number);

/// A text that ends in a unit of three characters, such as "（元）", which is drawn at size 11.
struct UnitText {
    Q_GADGET
    Q_PROPERTY(QString figure MEMBER figure)
    Q_PROPERTY(QString unit MEMBER unit)
public:
    QString figure;
    QString unit;
    bool operator==(const UnitText &) const = default;
};

/// A text of less than three characters is all unit.
UnitText setAttributeWithText(const QString &text);

/// Every " " removed, then spaces and tabs trimmed at both ends. Kept on purpose: line breaks stay.
QString clearSpaceAndWrap(const QString &text);
