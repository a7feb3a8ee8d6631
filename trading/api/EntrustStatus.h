#pragma once

#include <QObject>
#include <QString>

/// How an entrust's "status", a code from 0 to 9 read as a whole number, is shown. Other codes have no text.
struct EntrustStatus {
    Q_GADGET
public:
    /// The colour of the text in the entrust lists.
    enum Tone { Plain, Waiting, Dealt };
    Q_ENUM(Tone)

    QString text;
    Tone tone = Plain;

    static EntrustStatus of(const QString &status);
};
