#pragma once

#include <QQuickItem>

/// What can be pressed: with the pointer, with Enter or Space while it has the focus (a key that is held acts
/// once), or by assistive technology. It lays its content and, behind that, its background. Roles and states
/// are left to what it is used for: Qt takes those of its own buttons from C++, whatever a view says.
class TapArea : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool pressed READ isPressed NOTIFY pressedChanged)
    Q_PROPERTY(QQuickItem *background READ background WRITE setBackground NOTIFY backgroundChanged)
    Q_PROPERTY(QQuickItem *contentItem READ contentItem WRITE setContentItem NOTIFY contentItemChanged)
    // Between the edges and the content.
    Q_PROPERTY(qreal leftPadding MEMBER left WRITE setLeftPadding NOTIFY leftPaddingChanged)
    Q_PROPERTY(qreal rightPadding MEMBER right WRITE setRightPadding NOTIFY rightPaddingChanged)
    // Between the edges and the background.
    Q_PROPERTY(qreal topInset MEMBER top WRITE setTopInset NOTIFY topInsetChanged)
    Q_PROPERTY(qreal bottomInset MEMBER bottom WRITE setBottomInset NOTIFY bottomInsetChanged)
public:
    explicit TapArea(QQuickItem *parent = nullptr);

    bool isPressed() const { return down; }
    QQuickItem *background() const { return back; }
    void setBackground(QQuickItem *item);
    QQuickItem *contentItem() const { return front; }
    void setContentItem(QQuickItem *item);
    void setLeftPadding(qreal padding);
    void setRightPadding(qreal padding);
    void setTopInset(qreal inset);
    void setBottomInset(qreal inset);

    /// Does nothing while it is disabled.
    Q_INVOKABLE void press();
    /// The pointer that is down on it does nothing more: what it stands for has changed.
    Q_INVOKABLE void letGo();

Q_SIGNALS:
    void clicked();
    void pressedChanged();
    void backgroundChanged();
    void contentItemChanged();
    void leftPaddingChanged();
    void rightPaddingChanged();
    void topInsetChanged();
    void bottomInsetChanged();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void keyPressEvent(QKeyEvent *event) override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;

private:
    void setPressed(bool pressed);
    void lay();

    QQuickItem *back = nullptr;
    QQuickItem *front = nullptr;
    qreal left = 0;
    qreal right = 0;
    qreal top = 0;
    qreal bottom = 0;
    bool down = false;
};
