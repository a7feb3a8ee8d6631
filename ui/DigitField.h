#pragma once

#include <QQuickItem>

/// Takes digits from the keyboard, an input method or the clipboard and keeps none of them: what a field
/// holds can be read by every program that listens to what screen readers are told.
class DigitField : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
public:
    explicit DigitField(QQuickItem *parent = nullptr);

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

Q_SIGNALS:
    /// As it was typed or pasted, not cleaned.
    void typed(const QString &text);
    /// The last digit was taken back.
    void erased();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
};
