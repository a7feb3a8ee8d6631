#pragma once

#include "account/screens/TZFormController.h"

/// Takes a nickname and saves it. What registration and the later change have in common.
class TZNicknameController : public TZFormController {
    Q_OBJECT
    Q_PROPERTY(QString nick READ nick NOTIFY nickChanged)
public:
    QString nick() const { return nickname; }

    /// `markedText` says whether the input method still composes; nothing is cut before it has ended.
    Q_INVOKABLE void textFiledEditChanged(const QString &text, bool markedText = false);

Q_SIGNALS:
    void nickChanged();

protected:
    /// Sends the nickname, or shows what is wrong with it.
    void saveNick();
    virtual void nickSaved() = 0;

private:
    QString nickname;
};
