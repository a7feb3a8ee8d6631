#include "ui/LastInput.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <utility>

LastInput::LastInput(QObject *parent) : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool LastInput::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        // Keys beyond these are a device's own: back, volume.
        if (watched->isWindowType() && static_cast<QKeyEvent *>(event)->key() < Qt::Key_Super_L)
            setByKeyboard(true);
        break;
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
        setByKeyboard(false);
        break;
    default:
        break;
    }
    return false;
}

void LastInput::setByKeyboard(bool by)
{
    firstKey = by && !keyboard;
    if (std::exchange(keyboard, by) != by)
        Q_EMIT changed();
}
