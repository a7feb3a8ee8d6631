#include "ui/TapArea.h"

#include <QKeyEvent>
#include <utility>

TapArea::TapArea(QQuickItem *parent) : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
}

void TapArea::setBackground(QQuickItem *item)
{
    if (back == item)
        return;
    back = item;
    if (back) {
        back->setParentItem(this);
        back->setZ(-1);
    }
    lay();
    Q_EMIT backgroundChanged();
}

void TapArea::setContentItem(QQuickItem *item)
{
    if (front == item)
        return;
    front = item;
    if (front)
        front->setParentItem(this);
    lay();
    Q_EMIT contentItemChanged();
}

void TapArea::setLeftPadding(qreal padding)
{
    if (std::exchange(left, padding) == padding)
        return;
    lay();
    Q_EMIT leftPaddingChanged();
}

void TapArea::setRightPadding(qreal padding)
{
    if (std::exchange(right, padding) == padding)
        return;
    lay();
    Q_EMIT rightPaddingChanged();
}

void TapArea::setTopInset(qreal inset)
{
    if (std::exchange(top, inset) == inset)
        return;
    lay();
    Q_EMIT topInsetChanged();
}

void TapArea::setBottomInset(qreal inset)
{
    if (std::exchange(bottom, inset) == inset)
        return;
    lay();
    Q_EMIT bottomInsetChanged();
}

void TapArea::press()
{
    if (isEnabled())
        Q_EMIT clicked();
}

void TapArea::letGo()
{
    ungrabMouse();
}

void TapArea::mousePressEvent(QMouseEvent *)
{
    setPressed(true);
}

void TapArea::mouseMoveEvent(QMouseEvent *event)
{
    setPressed(contains(event->position()));
}

void TapArea::mouseReleaseEvent(QMouseEvent *)
{
    if (!down)
        return;
    setPressed(false);
    Q_EMIT clicked();
}

void TapArea::mouseDoubleClickEvent(QMouseEvent *)
{
    // Comes after the second press. Refused, it would take that press away from a finger.
}

void TapArea::mouseUngrabEvent()
{
    setPressed(false);
}

void TapArea::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Select:
        if (!event->isAutoRepeat())
            press();
        break;
    default:
        event->ignore();
    }
}

void TapArea::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size())
        lay();
}

void TapArea::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickItem::itemChange(change, value);
    if (change == ItemEnabledHasChanged || change == ItemVisibleHasChanged)
        setPressed(false);
    else if (change == ItemChildRemovedChange && value.item == front)
        front = nullptr;
    else if (change == ItemChildRemovedChange && value.item == back)
        back = nullptr;
}

void TapArea::setPressed(bool pressed)
{
    if (std::exchange(down, pressed) != pressed)
        Q_EMIT pressedChanged();
}

void TapArea::lay()
{
    if (back) {
        back->setY(top);
        back->setSize({width(), height() - top - bottom});
    }
    if (front) {
        front->setX(left);
        front->setSize({width() - left - right, height()});
    }
}
