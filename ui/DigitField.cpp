#include "ui/DigitField.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>

DigitField::DigitField(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemAcceptsInputMethod);
    setAcceptedMouseButtons(Qt::LeftButton);
    setActiveFocusOnTab(true);
}

QVariant DigitField::inputMethodQuery(Qt::InputMethodQuery query) const
{
    switch (query) {
    case Qt::ImEnabled:
        return true;
    case Qt::ImHints:
        return int(Qt::ImhDigitsOnly | Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText);
    case Qt::ImCursorRectangle:
        return boundingRect();
    default:
        return {};
    }
}

void DigitField::mousePressEvent(QMouseEvent *)
{
    forceActiveFocus(Qt::MouseFocusReason);
    QGuiApplication::inputMethod()->show();
}

void DigitField::keyPressEvent(QKeyEvent *event)
{
    const QString text = event->text();
    if (event->matches(QKeySequence::Paste))
        Q_EMIT typed(QGuiApplication::clipboard()->text());
    else if (event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete)
        Q_EMIT erased();
    else if (!text.isEmpty() && text.at(0).isDigit())
        Q_EMIT typed(text);
    else
        event->ignore();
}

void DigitField::inputMethodEvent(QInputMethodEvent *event)
{
    if (!event->commitString().isEmpty())
        Q_EMIT typed(event->commitString());
    else if (event->replacementLength() > 0)
        Q_EMIT erased();
}

void DigitField::focusInEvent(QFocusEvent *event)
{
    QQuickItem::focusInEvent(event);
    QGuiApplication::inputMethod()->show();
}
