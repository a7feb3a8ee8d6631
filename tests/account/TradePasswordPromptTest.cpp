#include "core/shell/KRWindow.h"
#include "core/shell/TZTradePwdAlertView.h"
#include "tests/support/TestPlatform.h"

using namespace std::chrono_literals;

namespace {
class Asker : public QObject, public TZTradePwdAlertDelegate {
public:
    explicit Asker(QStringList &list) : passwords(list) {}
    void checkTradePwd(const QString &password) override { passwords.append(password); }

private:
    QStringList &passwords;
};
} // namespace

class TradePasswordPromptTest : public PlatformTest {
protected:
    TradePasswordPromptTest() : prompt(TZTradePwdAlertView::showAlertView(window, *asker, *asker)) {}

    bool isOnWindow() { return window.dialogs()->count() > 0; }

    QStringList passwords;
    std::unique_ptr<Asker> asker = std::make_unique<Asker>(passwords);
    KRWindow window;
    TZTradePwdAlertView *prompt;
};

TEST_F(TradePasswordPromptTest, SixDigitsHideItAndAreHandedOverOnceASecondLater)
{
    EXPECT_EQ(prompt->fadeDuration(), 250);
    prompt->setInputTextField("12 34 5");
    EXPECT_EQ(prompt->btns(), (QList<bool>{true, true, true, true, true, false}));
    EXPECT_TRUE(prompt->isShown());
    prompt->setInputTextField("12 34 56 7");
    EXPECT_EQ(prompt->inputTextField(), "123456");
    EXPECT_FALSE(prompt->isShown());
    EXPECT_EQ(prompt->fadeDuration(), 200);
    prompt->setInputTextField("654321");
    prompt->cancel();
    runLoop.advance(999ms);
    EXPECT_TRUE(passwords.isEmpty());
    EXPECT_TRUE(isOnWindow()) << "the screen below must not ask a second time meanwhile";
    runLoop.advance(1ms);
    EXPECT_EQ(passwords, QStringList("123456"));
    EXPECT_FALSE(isOnWindow());
    EXPECT_TRUE(prompt->inputTextField().isEmpty());
    EXPECT_EQ(TZTradePwdAlertView::showAlertView(window, *asker, *asker)->btns(), QList<bool>(6, false));
    runLoop.advance(5s);
    EXPECT_EQ(passwords.size(), 1);
}

TEST_F(TradePasswordPromptTest, OnlyDigitsCount)
{
    const std::pair<QString, QString> cases[] = {
        {"12ab", "12"},
        {"密码", ""},
        {"１２３", ""},
        {"-1.5", "15"},
        {"😀1", "1"},
        {"1\n2\t3", "123"},
        {QString(10'000, u'x') + "\u200f12\u202e3", "123"},
    };
    for (const auto &[typed, kept] : cases) {
        prompt->setInputTextField(typed);
        EXPECT_EQ(prompt->inputTextField(), kept) << typed.right(9).toStdString();
    }
    EXPECT_TRUE(prompt->isShown());
}

TEST_F(TradePasswordPromptTest, ClosingItAsksNobody)
{
    prompt->setInputTextField("123");
    prompt->closeBtnClick();
    EXPECT_FALSE(isOnWindow());
    runLoop.advance(2s);
    EXPECT_TRUE(passwords.isEmpty());
}

TEST_F(TradePasswordPromptTest, ItGoesWithItsOwner)
{
    prompt->setInputTextField("123456");
    asker.reset();
    EXPECT_FALSE(isOnWindow());
    settle();
    runLoop.advance(2s);
    EXPECT_TRUE(passwords.isEmpty());
    EXPECT_EQ(runLoop.activeTimers(), 0);
}

TEST_F(TradePasswordPromptTest, HiddenWithoutAnAnimationItOnlyEndsEditingWithOneItGoesWithoutACall)
{
    int ended = 0;
    QObject::connect(&window, &KRWindow::editingEnded, asker.get(), [&ended] { ++ended; });
    prompt->hideAlertView(TZTradePwdAlertView::Animation::None);
    EXPECT_EQ(ended, 1);
    EXPECT_TRUE(prompt->isShown());
    EXPECT_TRUE(isOnWindow());

    prompt->setInputTextField("123");
    prompt->hideAlertView(TZTradePwdAlertView::Animation::Fade);
    EXPECT_FALSE(prompt->isShown());
    prompt->setInputTextField("123456");
    runLoop.advance(199ms);
    EXPECT_TRUE(isOnWindow());
    runLoop.advance(1ms);
    EXPECT_FALSE(isOnWindow()) << "what nobody sees must not cover the window";
    runLoop.advance(2s);
    EXPECT_TRUE(passwords.isEmpty());
}
