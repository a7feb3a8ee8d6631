#include "core/shell/KRNavigationController.h"
#include "core/shell/TZGuideController.h"
#include "tests/shell/AllScreens.h"
#include "tests/shell/RealWindow.h"

#include <QCoreApplication>
#include <QQmlEngine>
#include <QQuickWindow>
#include <malloc.h>

#ifdef __SANITIZE_ADDRESS__
#define WITH_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define WITH_ADDRESS_SANITIZER
#endif
#endif
#ifdef WITH_ADDRESS_SANITIZER
#include <sanitizer/allocator_interface.h>
#endif

namespace {
size_t allocatedBytes()
{
#ifdef WITH_ADDRESS_SANITIZER
    return __sanitizer_get_current_allocated_bytes();
#else
    return mallinfo2().uordblks;
#endif
}

int rounds()
{
    const int asked = qEnvironmentVariableIntValue("ZORVANE_SOAK_ROUNDS");
    return asked > 0 ? asked : 20;
}
} // namespace

/// Opens and closes each screen with its view over and over: what one round leaves behind, all rounds leave.
class ScreensSoakTest : public RealWindowTest, public testing::WithParamInterface<AnyScreen> {
protected:
    void SetUp() override
    {
        RealWindowTest::SetUp();
        qobject_cast<TZGuideController *>(window.root())->removeGuideView();
        pass();
        window.topStack()->setProperty("animated", false);
    }

    void openAndClose()
    {
        KRNavigationController *const stack = window.topStack();
        stack->push(GetParam().make(router));
        QCoreApplication::processEvents();
        answerAll();
        QCoreApplication::processEvents();
        stack->pop();
        settle();
        QCoreApplication::processEvents();
        http.sent.clear();
    }

    size_t bytesAfter(int count)
    {
        for (int i = 0; i < count; ++i)
            openAndClose();
        qmlEngine(shown)->collectGarbage();
        settle();
        return allocatedBytes();
    }
};

TEST_P(ScreensSoakTest, LeavesNothingBehind)
{
    // What the heap breathes by itself, and what a round may leave.
    constexpr size_t breath = 500'000;
    constexpr size_t crumbs = 1'000;
    const size_t allowed = breath + crumbs * static_cast<size_t>(rounds());
    size_t before = bytesAfter(10);
    size_t after = bytesAfter(rounds());
    // A store that fills once grows one time; what a screen leaves behind grows each time.
    for (int again = 0; again < 2 && after >= before + allowed; ++again) {
        before = after;
        after = bytesAfter(rounds());
    }
    EXPECT_LT(after, before + allowed) << "from " << before;
}

INSTANTIATE_TEST_SUITE_P(Client, ScreensSoakTest, testing::ValuesIn(allScreens()),
                         [](const auto &screen) { return std::string(screen.param.name); });
