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

TEST_F(MessageDetailTest, ShowingAMessageMarksItRead)
{
    const TZMessageDetailController *const screen = present({});
    EXPECT_EQ(http.last().request.method, QByteArray("PUT"));
    EXPECT_EQ(http.last().request.url, QStringLiteral("https://service.test/msg/mark?msgId=m7"));
    EXPECT_EQ(screen->time(), QStringLiteral("2023-11-15 06:13"));
    EXPECT_TRUE(screen->showBackButton());
    EXPECT_FALSE(screen->shareable());
}

TEST_F(MessageDetailTest, APushedMessageClosesInsteadOfGoingBack)
{
    TZMessageDetailController *const screen = present(QStringLiteral("remote"));
    EXPECT_FALSE(screen->showBackButton());
    EXPECT_EQ(screen->rightItemImage(), QStringLiteral("common_close_gray"));
    screen->rightItemClick();
    EXPECT_EQ(window.presented()->count(), 0);
}

TEST_F(MessageDetailTest, TheHomePageIsOneTapAwayFromAPushedMessage)
{
    present(QStringLiteral("remote"))->backToHome();
    EXPECT_EQ(router.calls, QStringList(QStringLiteral("showHome")));
    EXPECT_EQ(window.presented()->count(), 0);
}

TEST_F(MessageDetailTest, SharingHandsOverWhatTheMessageBrought)
{
    model.shareTitle = QStringLiteral("活动");
    model.shareUrl = QStringLiteral("https://x.example/");
    TZMessageDetailController *const screen = present({});
    EXPECT_TRUE(screen->shareable());
    screen->shareBtnClick();
    EXPECT_EQ(kits.shared.title, QStringLiteral("活动"));
    EXPECT_EQ(kits.shared.link, QStringLiteral("https://x.example/"));
}
