#pragma once

#include "app/AppRouter.h"
#include "app/Views.h"
#include "core/shell/AppDelegate.h"
#include "core/shell/KRWindow.h"
#include "tests/support/TestPlatform.h"

#include <optional>

class QQuickWindow;

/// The real window offscreen, with a signed-in user and a service that answers when told. What the views
/// complain of is collected.
class RealWindowTest : public PlatformTest {
protected:
    RealWindowTest();
    void SetUp() override;
    void TearDown() override;

    /// Long enough for a screen to slide in or out.
    static void pass();
    /// Answers every request with success and nothing else, and those that come of it.
    void answerAll();
    void tap(const QPointF &place) const;
    /// What was complained of since it was last asked; empty when all is well.
    static std::string complaints();

    KRWindow window;
    AppRouter router{window};
    AppDelegate shell{window, router, [] {}};
    std::optional<Views> views{std::in_place};
    QQuickWindow *shown = nullptr;
};
