#pragma once

#include <QAccessible>
#include <QImage>
#include <QRect>
#include <QString>
#include <QStringList>
#include <chrono>
#include <functional>
#include <optional>

class QQuickWindow;

/// Uses a window as a person does who reads what is on it: finds a control by the name that a screen reader
/// would speak, and presses it with the mouse, or gets to it with Tab and presses Enter.
class Hand {
public:
    enum class Means { Mouse, Keyboard };

    explicit Hand(QQuickWindow &usedWindow, Means usedMeans = Means::Mouse);

    /// Runs the client until `reached`, or until the time is over; says which.
    static bool wait(const std::function<bool()> &reached,
                     std::chrono::milliseconds atMost = std::chrono::seconds(10));

    bool sees(const QString &name) const { return find(name, false).has_value(); }
    /// Whether a visible name holds `part`.
    bool seesPart(const QString &part) const { return find(part, true).has_value(); }
    bool waitFor(const QString &name) const;
    bool waitForPart(const QString &part) const;
    bool waitUntilGone(const QString &name) const;

    /// Waits for the control, then presses it. False when it did not come, or when the keyboard does not get
    /// to it or does not show that it has.
    bool press(const QString &name);
    bool pressPart(const QString &part);
    /// Goes into the field of that name (its placeholder), empties it and types.
    bool type(const QString &field, const QString &text);
    /// Out of the screen: by its back button, or by Esc.
    bool back();
    void key(Qt::Key key);
    void keys(const QString &text);

    /// The names of everything that is on the window, in reading order.
    QStringList names() const;
    QImage picture() const;

private:
    struct Control {
        QString name;
        QRect place;
    };
    /// Of what is only read and what can be pressed a page has many of one name.
    enum class Kind { Any, Pressable };
    std::optional<Control> find(const QString &name, bool part, Kind kind = Kind::Any) const;
    /// Waits until the control is there and stands still, as a person does; null when it never does.
    std::optional<Control> standing(const QString &name, bool part, Kind kind) const;
    void visit(QAccessibleInterface *from, const std::function<bool(QAccessibleInterface *)> &seen) const;
    bool reach(const std::optional<Control> &control);
    bool click(const Control &control);
    /// With Tab alone, or else with the arrow keys too.
    bool tabTo(const Control &control);
    bool goesTo(const Control &control, Qt::Key arrow);
    bool isAt(const Control &control) const;
    bool pressed(const std::optional<Control> &control);

    QQuickWindow &window;
    const Means means;
};
