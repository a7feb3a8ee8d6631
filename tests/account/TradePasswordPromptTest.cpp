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

TEST_F(TradePasswordPromptTest, SixDigitsHideItAndAreHandedOverASecondLater)
{
    EXPECT_EQ(prompt->fadeDuration(), 250);
    prompt->setInputTextField(QStringLiteral("12 34 5"));
    EXPECT_EQ(prompt->btns(), (QList<bool>{true, true, true, true, true, false}));
    EXPECT_TRUE(prompt->isShown());
    prompt->setInputTextField(QStringLiteral("12 34 56 7"));
    EXPECT_EQ(prompt->inputTextField(), QStringLiteral("123456"));
    EXPECT_FALSE(prompt->btns().contains(false));
    EXPECT_FALSE(prompt->isShown());
    EXPECT_EQ(prompt->fadeDuration(), 200);
    runLoop.advance(999ms);
    EXPECT_TRUE(passwords.isEmpty());
    EXPECT_TRUE(isOnWindow()) << "the screen below must not ask a second time meanwhile";
    runLoop.advance(1ms);
    EXPECT_EQ(passwords, QStringList(QStringLiteral("123456")));
    EXPECT_FALSE(isOnWindow());
    EXPECT_TRUE(prompt->inputTextField().isEmpty());
}

TEST_F(TradePasswordPromptTest, OnePasswordIsHandedOverOnce)
{
    prompt->setInputTextField(QStringLiteral("123456"));
    prompt->setInputTextField(QStringLiteral("654321"));
    prompt->cancel();
    runLoop.advance(5s);
    EXPECT_EQ(passwords, QStringList(QStringLiteral("123456")));
}

TEST_F(TradePasswordPromptTest, OnlyDigitsCount)
{
    const struct {
        QString typed;
        QString kept;
    } cases[] = {
        {"12ab", "12"},
        {"密码", ""},
        {"１２３", ""},
        {"1\n2\t3", "123"},
        {"-1.5", "15"},
        {"😀1", "1"},
        {"\u200f12\u202e3", "123"},
    };
    for (const auto &[typed, kept] : cases) {
        prompt->setInputTextField(typed);
        EXPECT_EQ(prompt->inputTextField(), kept) << typed.toStdString();
    }
    prompt->setInputTextField(QString(10'000, u'x') + QStringLiteral("12345"));
    EXPECT_TRUE(prompt->isShown());
}

TEST_F(TradePasswordPromptTest, ClosingItAsksNobody)
{
    prompt->setInputTextField(QStringLiteral("123"));
    prompt->closeBtnClick();
    EXPECT_FALSE(isOnWindow());
    runLoop.advance(2s);
    EXPECT_TRUE(passwords.isEmpty());
}

TEST_F(TradePasswordPromptTest, ItGoesWithItsOwner)
{
    prompt->setInputTextField(QStringLiteral("123456"));
    asker.reset();
    EXPECT_FALSE(isOnWindow());
    settle();
    runLoop.advance(2s);
    EXPECT_TRUE(passwords.isEmpty());
    EXPECT_EQ(runLoop.activeTimers(), 0);
}

TEST_F(TradePasswordPromptTest, HidingWithoutAnAnimationOnlyEndsEditing)
{
    int ended = 0;
    QObject::connect(&window, &KRWindow::editingEnded, asker.get(), [&ended] { ++ended; });
    prompt->hideAlertView(TZTradePwdAlertView::Animation::None);
    EXPECT_EQ(ended, 1);
    EXPECT_TRUE(prompt->isShown());
    EXPECT_TRUE(isOnWindow());
}

TEST_F(TradePasswordPromptTest, HidingWithAnAnimationTakesItAwayWithoutACall)
{
    prompt->setInputTextField(QStringLiteral("123"));
    prompt->hideAlertView(TZTradePwdAlertView::Animation::Fade);
    EXPECT_FALSE(prompt->isShown());
    prompt->setInputTextField(QStringLiteral("123456"));
    runLoop.advance(199ms);
    EXPECT_TRUE(isOnWindow());
    runLoop.advance(1ms);
    EXPECT_FALSE(isOnWindow()) << "what nobody sees must not cover the window";
    runLoop.advance(2s);
    EXPECT_TRUE(passwords.isEmpty());
}

TEST_F(TradePasswordPromptTest, ANewPromptIsEmpty)
{
    prompt->setInputTextField(QStringLiteral("123456"));
    runLoop.advance(1s);
    EXPECT_EQ(TZTradePwdAlertView::showAlertView(window, *asker, *asker)->btns(), QList<bool>(6, false));
}
