#pragma once

#include <QObject>
#include <QString>

/// The buy page: `data` is the money usable for buying, in yuan.
struct TZBuyPageModel {
    Q_GADGET
    Q_PROPERTY(QString data MEMBER data)
public:
    QString data;
};
