#pragma once

#include "app/AppRouter.h"
#include "app/Views.h"
#include "core/shell/AppDelegate.h"
#include "core/shell/KRWindow.h"
#include "tests/support/TestPlatform.h"

#include <optional>

class QQuickItem;
class QQuickWindow;

/// The real window offscreen, with a signed-in user and a service that answers when told. What the views
/// complain of is collected.
class RealWindowTest : public PlatformTest {
protected:
    RealWindowTest();
    void SetUp() override;
    void TearDown() override;

    /// Long enough for a screen to slide in or out, also on a busy machine.
    void pass() const;
    /// Lays out and draws what has changed.
    void draw() const;
    /// Answers every request with success and nothing else, and those that come of it.
    void answerAll();
    /// What was complained of since it was last asked; empty when all is well.
    static std::string complaints();

    template <typename Screen, typename... Arguments> Screen *present(Arguments &&...arguments)
    {
        auto screen = std::make_unique<Screen>(std::forward<Arguments>(arguments)...);
        Screen *const presented = screen.get();
        window.present(std::move(screen));
        return presented;
    }
    /// What is seen, in `area` if that is given, with `value` as its `property`; null, and a failed test,
    /// when there is none.
    QQuickItem *item(const char *property, const QString &value, const QQuickItem *area = nullptr) const;
    /// In the window.
    static QPointF middleOf(const QQuickItem *item);
    void press(const QPointF &place) const;
    void release(const QPointF &place) const;
    void tap(const QPointF &place) const;
    void strike(Qt::Key key) const;

    KRWindow window;
    AppRouter router{window};
    AppDelegate shell{window, router, [] {}};
    std::optional<Views> views{std::in_place};
    QQuickWindow *shown = nullptr;
};
