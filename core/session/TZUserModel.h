#pragma once

#include <QObject>
#include <QString>

/// The stored user, the only session object; read afresh from the settings whenever it is needed.
struct TZUserModel {
    Q_GADGET
    Q_PROPERTY(QString api_token MEMBER api_token)
    Q_PROPERTY(QString has_register MEMBER has_register)
    Q_PROPERTY(QString cell MEMBER cell)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString nick MEMBER nick)
    Q_PROPERTY(QString inviteCode MEMBER inviteCode)
public:
    QString api_token;
    QString has_register;
    QString cell;
    QString name;
    QString nick;
    QString inviteCode;

    /// The user under the settings key "user"; all empty when there is none.
    static TZUserModel stored();
};
