#pragma once

#include <QObject>
#include <QtQml/qqml.h>

/// By what the client was used last. Where the focus is, is shown while that is the keyboard.
class LastInput : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool byKeyboard READ isByKeyboard NOTIFY changed)
public:
    explicit LastInput(QObject *parent = nullptr);

    bool isByKeyboard() const { return keyboard; }
    /// Whether the key that is being handled is the first after the pointer: until it came, nothing showed
    /// where the focus is.
    Q_INVOKABLE bool isFirstKey() const { return firstKey; }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void changed();

private:
    void setByKeyboard(bool by);

    bool keyboard = false;
    bool firstKey = false;
};
