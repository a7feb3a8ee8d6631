#include "core/shell/KRNavigationController.h"
#include "core/shell/KRWindow.h"
#include "core/util/Text.h"
#include "home/screens/TZMessageDetailController.h"
#include "tests/support/RecordingRouter.h"
#include "tests/support/TestPlatform.h"

class MessageDetailTest : public PlatformTest {
protected:
    TZMessageDetailController *present(const QString &fromController)
    {
        auto screen = std::make_unique<TZMessageDetailController>(router, model, fromController);
        auto *const shown = screen.get();
        window.present(std::move(screen));
        return shown;
    }

    RecordingRouter router;
    KRWindow window;
    TZMessageModel model = fromDictionary<TZMessageModel>(QVariantMap{
        {"id", "m7"}, {"title", "系统维护"}, {"content", "今晚维护"}, {"sendDate", "1700000000000"}});
};

TEST_F(MessageDetailTest, ShowingAMessageMarksItReadAndSharingHandsOverWhatItBrought)
{
    EXPECT_FALSE(present({})->shareable());
    EXPECT_EQ(http.last().request.method, "PUT");
    EXPECT_EQ(http.last().request.url, "https://service.test/msg/mark?msgId=m7");
    model.shareTitle = "活动";
    model.shareUrl = "https://x.example/";
    TZMessageDetailController *const screen = present({});
    EXPECT_EQ(screen->time(), "2023-11-15 06:13");
    EXPECT_TRUE(screen->showBackButton());
    EXPECT_TRUE(screen->shareable());
    screen->shareBtnClick();
    EXPECT_EQ(kits.shared.title, "活动");
    EXPECT_EQ(kits.shared.link, "https://x.example/");
}

TEST_F(MessageDetailTest, APushedMessageClosesInsteadOfGoingBackAndHomeIsOneTapAway)
{
    TZMessageDetailController *const screen = present("remote");
    EXPECT_FALSE(screen->showBackButton());
    EXPECT_EQ(screen->rightItemImage(), "common_close_gray");
    screen->rightItemClick();
    EXPECT_EQ(window.presented()->count(), 0);
    present("remote")->backToHome();
    EXPECT_EQ(router.calls, QStringList("showHome"));
    EXPECT_EQ(window.presented()->count(), 0);
}
