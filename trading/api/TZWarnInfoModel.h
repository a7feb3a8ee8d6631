#pragma once

#include <QObject>
#include <QString>

/// The lines of the account below which the user is warned and positions are closed, in yuan.
struct TZWarnInfoModel {
    Q_GADGET
    Q_PROPERTY(QString warnLine MEMBER warnLine)
    Q_PROPERTY(QString closeOutLine MEMBER closeOutLine)
public:
    QString warnLine;
    QString closeOutLine;
};
