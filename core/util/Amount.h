#pragma once

#include <QString>
#include <QVariant>

/// Money as the display types write it; an empty text stays empty. Kept on purpose: buttons cut to the cent
/// in single precision, labels round in double precision.
QString buttonAmount(const QVariant &amount);
QString buttonAmountWithYuan(const QVariant &amount);
QString labelAmount(const QVariant &amount);
QString labelAmountWithYuan(const QVariant &amount);

/// Every " " removed, then spaces and tabs trimmed at both ends. Kept on purpose: line breaks stay.
QString clearSpaceAndWrap(const QString &text);
