#pragma once

#include <QObject>
#include <QString>

/// A line of a notice board. Kept on purpose: no call of the service fills it yet.
struct TZBoardModel {
    Q_GADGET
    Q_PROPERTY(QString boardContent MEMBER boardContent)
public:
    QString boardContent;
};
