#pragma once

#include "core/shell/KRNavigationController.h"
#include "core/shell/KRSideMenu.h"
#include "core/shell/KRWindow.h"
#include "core/shell/TZInfoAlertView.h"
#include "core/shell/TZTradePwdAlertView.h"
#include "tests/support/RecordingRouter.h"
#include "tests/support/TestPlatform.h"

#include <chrono>

using namespace std::chrono_literals;

/// A window whose stack has a first screen; the screens under test are pushed on it.
class TradingFixture : public PlatformTest {
protected:
    TradingFixture()
    {
        signIn();
        auto first = std::make_unique<KRBaseController>();
        window.setRoot(
            std::make_unique<KRSideMenu>(std::make_unique<KRNavigationController>(std::move(first)),
                                         std::make_unique<KRBaseController>()));
        window.makeKeyAndVisible();
    }

    KRNavigationController &stack() { return *window.topStack(); }

    template <typename Screen, typename... Arguments> Screen *push(Arguments &&...arguments)
    {
        auto screen = std::make_unique<Screen>(std::forward<Arguments>(arguments)...);
        Screen *const pushed = screen.get();
        stack().push(std::move(screen));
        return pushed;
    }
    template <typename Screen> Screen *top() { return dynamic_cast<Screen *>(stack().top()); }

    /// Covers the screen until what it returns is dismissed.
    KRNavigationController *cover() { return window.present(std::make_unique<KRBaseController>()); }

    template <typename Dialog> Dialog *dialog()
    {
        return window.dialogs()->count() == 0 ? nullptr : dynamic_cast<Dialog *>(window.dialogs()->at(0));
    }
    TZInfoAlertView *alert() { return dialog<TZInfoAlertView>(); }
    TZTradePwdAlertView *prompt() { return dialog<TZTradePwdAlertView>(); }

    void typePassword(const QString &password)
    {
        ASSERT_NE(prompt(), nullptr);
        prompt()->setInputTextField(password);
        runLoop.advance(1s);
    }

    RecordingRouter router;
    KRWindow window;
};
