#include "tour/Hand.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QTimer>

using namespace std::chrono_literals;

namespace {
/// What is spoken of an item, or else of what it is part of.
QAccessibleInterface *spokenOf(QQuickItem *item)
{
    for (; item; item = item->parentItem()) {
        QAccessibleInterface *const spoken = QAccessible::queryAccessibleInterface(item);
        if (spoken && !spoken->text(QAccessible::Name).isEmpty())
            return spoken;
    }
    return nullptr;
}

bool canBePressed(QAccessibleInterface *control)
{
    QAccessibleActionInterface *const actions = control->actionInterface();
    return actions && actions->actionNames().contains(QAccessibleActionInterface::pressAction());
}
} // namespace

Hand::Hand(QQuickWindow &usedWindow, Means usedMeans) : window(usedWindow), means(usedMeans)
{
    QAccessible::setActive(true);
}

bool Hand::wait(const std::function<bool()> &reached, std::chrono::milliseconds atMost)
{
    QEventLoop loop;
    QTimer look;
    QTimer limit;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    bool done = reached();
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        done = done || reached();
        if (done)
            loop.quit();
    });
    if (done)
        return true;
    look.start(50ms);
    limit.start(atMost);
    loop.exec();
    return done;
}

bool Hand::waitFor(const QString &name) const
{
    return wait([&] { return sees(name); });
}

bool Hand::waitForPart(const QString &part) const
{
    return wait([&] { return seesPart(part); });
}

bool Hand::waitUntilGone(const QString &name) const
{
    return wait([&] { return !sees(name); });
}

bool Hand::press(const QString &name)
{
    return pressed(standing(name, false, Kind::Pressable));
}

bool Hand::pressPart(const QString &part)
{
    return pressed(standing(part, true, Kind::Pressable));
}

bool Hand::type(const QString &field, const QString &text)
{
    if (!reach(standing(field, false, Kind::Any)))
        return false;
    QTest::keyClick(&window, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_Delete);
    keys(text);
    return true;
}

bool Hand::back()
{
    if (means == Means::Mouse)
        return press(QStringLiteral("返回"));
    const bool hasWayBack = standing(QStringLiteral("返回"), false, Kind::Pressable).has_value();
    key(Qt::Key_Escape);
    return hasWayBack;
}

void Hand::key(Qt::Key key)
{
    QTest::keyClick(&window, key);
}

void Hand::keys(const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(&window, character.toLatin1());
}

QStringList Hand::names() const
{
    QStringList all;
    visit(QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface *seen) {
        const QString name = seen->text(QAccessible::Name);
        if (!name.isEmpty())
            all.append(name);
        return false;
    });
    return all;
}

QImage Hand::picture() const
{
    return window.grabWindow();
}

std::optional<Hand::Control> Hand::find(const QString &name, bool part, Kind kind) const
{
    std::optional<Control> last;
    // What is drawn last lies on top: a dialog's button before the page's of the same name.
    visit(QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface *seen) {
        const QString spoken = seen->text(QAccessible::Name);
        if ((part ? spoken.contains(name) : spoken == name) && !seen->state().disabled &&
            (kind == Kind::Any || canBePressed(seen)))
            last = Control{spoken, seen->rect()};
        return false;
    });
    return last;
}

void Hand::visit(QAccessibleInterface *from, const std::function<bool(QAccessibleInterface *)> &seen) const
{
    if (!from)
        return;
    for (int i = 0; i < from->childCount(); ++i) {
        QAccessibleInterface *const child = from->child(i);
        if (!child || child->state().invisible)
            continue;
        const QRect onWindow(window.mapToGlobal(QPoint(0, 0)), window.size());
        if (onWindow.contains(child->rect().center()) && seen(child))
            return;
        visit(child, seen);
    }
}

std::optional<Hand::Control> Hand::standing(const QString &name, bool part, Kind kind) const
{
    // A motion may begin a moment after the control came, when the list that holds it settles.
    constexpr int looksToTrust = 5;
    std::optional<Control> before;
    int still = 0;
    const bool stands = wait([&] {
        const std::optional<Control> now = find(name, part, kind);
        still = now && before && now->place == before->place ? still + 1 : 0;
        before = now;
        return still >= looksToTrust;
    });
    return stands ? before : std::nullopt;
}

bool Hand::reach(const std::optional<Control> &control)
{
    return control && (means == Means::Mouse ? click(*control) : tabTo(*control));
}

bool Hand::pressed(const std::optional<Control> &control)
{
    if (!reach(control))
        return false;
    if (means == Means::Keyboard)
        key(Qt::Key_Return);
    return true;
}

bool Hand::click(const Control &control)
{
    QTest::mouseClick(&window, Qt::LeftButton, {}, window.mapFromGlobal(control.place.center()));
    QCoreApplication::processEvents();
    return true;
}

bool Hand::tabTo(const Control &control)
{
    constexpr int longestWay = 80;
    for (const bool arrows : {false, true}) {
        for (int tabs = 0; tabs < longestWay; ++tabs) {
            if (isAt(control) || (arrows && (goesTo(control, Qt::Key_Up) || goesTo(control, Qt::Key_Down))))
                return true;
            key(Qt::Key_Tab);
            QCoreApplication::processEvents();
        }
    }
    return false;
}

bool Hand::goesTo(const Control &control, Qt::Key arrow)
{
    const QQuickItem *before = nullptr;
    while (window.activeFocusItem() != before) {
        before = window.activeFocusItem();
        key(arrow);
        QCoreApplication::processEvents();
        if (isAt(control))
            return true;
    }
    return false;
}

bool Hand::isAt(const Control &control) const
{
    // A field shows that it has the keyboard with its cursor and its line, all else with a ring.
    QQuickItem *const focused = window.activeFocusItem();
    const QAccessibleInterface *const spoken = spokenOf(focused);
    const bool seen = focused && (focused->inherits("QQuickTextInput") || focused->inherits("DigitField") ||
                                  focused->property("showsFocus").toBool());
    return seen && spoken && spoken->text(QAccessible::Name) == control.name;
}
