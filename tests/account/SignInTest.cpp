#include "account/screens/Nickname.h"
#include "account/screens/TZCheckCellController.h"
#include "account/screens/TZLoginController.h"
#include "account/screens/TZRegisterController.h"
#include "account/screens/TZRegisterFinishController.h"
#include "core/session/NotificationNames.h"
#include "core/session/SettingsKeys.h"
#include "core/session/TZUserModel.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRWindow.h"
#include "tests/support/RecordingRouter.h"
#include "tests/support/TestPlatform.h"

#include <QPointer>

using namespace std::chrono_literals;

namespace {
const QString start = QStringLiteral("user/start");
const QString verify = QStringLiteral("user/verify");
const QString setNick = QStringLiteral("user/set_nick");
const QString cell = QStringLiteral("13812345678");
const QString wrongNumber = QStringLiteral("手机号格式不正确，请重新输入");

QVariantMap started(const QVariant &bizCode)
{
    QVariantMap answer = succeeded();
    answer.insert(QStringLiteral("bizCode"), bizCode);
    return answer;
}

QVariantMap user()
{
    return {{QStringLiteral("api_token"), QStringLiteral("fresh")}, {QStringLiteral("cell"), cell}};
}
} // namespace

class SignInTest : public PlatformTest {
protected:
    SignInTest()
    {
        window.setRoot(std::make_unique<KRBaseController>());
        auto screen = std::make_unique<TZCheckCellController>(router);
        entry = screen.get();
        screen->setToSomeController({&asker, [this] { events.append(QStringLiteral("toSomeController")); }});
        stack = window.present(std::move(screen));
        notifications.observe(&asker, NotificationNames::refreshHome,
                              [this](const QVariant &) { events.append(QStringLiteral("refreshHome")); });
    }

    void sendNumber(const QVariantMap &answer)
    {
        entry->setCell(cell);
        entry->clickNextStepBtn();
        http.answer(start, answer);
    }
    TZLoginController *toLogin()
    {
        sendNumber(started(QStringLiteral("1002")));
        return qobject_cast<TZLoginController *>(stack->top());
    }
    TZRegisterController *toRegistration()
    {
        sendNumber(started(QStringLiteral("1001")));
        return qobject_cast<TZRegisterController *>(stack->top());
    }
    TZRegisterFinishController *toNickname()
    {
        TZRegisterController *const registration = toRegistration();
        registration->textFiledEditChanged(QStringLiteral("123456"));
        registration->clickNextStepBtn();
        runLoop.advance(500ms);
        http.answer(verify, succeeded(user()));
        return qobject_cast<TZRegisterFinishController *>(stack->top());
    }
    bool isSignInShown() { return window.presented()->count() > 0; }

    RecordingRouter router;
    QObject asker;
    QStringList events;
    KRWindow window;
    TZCheckCellController *entry = nullptr;
    QPointer<KRNavigationController> stack;
};

TEST_F(SignInTest, AKnownNumberSignsInAndThenGoesOnToWhatAskedForIt)
{
    TZLoginController *const login = toLogin();
    ASSERT_TRUE(login);
    EXPECT_EQ(login->title(), QStringLiteral("登录"));
    EXPECT_EQ(login->headerText(), QStringLiteral("已发送短信验证码至138****5678，请在输入框内填写验证码"));
    EXPECT_EQ(login->requestData, (QVariantMap{{QStringLiteral("bizCode"), QStringLiteral("1002")},
                                               {QStringLiteral("cell"), cell}}));

    login->textFiledEditChanged(QStringLiteral("123456"));
    login->clickNextStepBtn();
    EXPECT_TRUE(overlays.isWaiting());
    EXPECT_EQ(http.pending(verify).fields(),
              (QVariantMap{{QStringLiteral("bizCode"), QStringLiteral("1002")},
                           {QStringLiteral("userInput"), QStringLiteral("123456")}}));
    EXPECT_TRUE(events.isEmpty());
    http.answer(verify, succeeded(user()));

    EXPECT_FALSE(overlays.isWaiting());
    EXPECT_EQ(TZUserModel::stored().api_token, QStringLiteral("fresh"));
    EXPECT_EQ(events, (QStringList{QStringLiteral("refreshHome"), QStringLiteral("toSomeController")}));
    EXPECT_FALSE(isSignInShown());
}

TEST_F(SignInTest, ANewNumberRegistersAndChoosesANickname)
{
    TZRegisterController *const registration = toRegistration();
    ASSERT_TRUE(registration);
    EXPECT_EQ(registration->title(), QStringLiteral("注册"));
    registration->textFiledEditChanged(QStringLiteral("654321"));
    registration->setInviteCode(QStringLiteral("AB12"));
    registration->clickNextStepBtn();
    runLoop.advance(500ms);
    EXPECT_EQ(http.pending(verify).fields(),
              (QVariantMap{{QStringLiteral("bizCode"), QStringLiteral("1001")},
                           {QStringLiteral("userInput"), QStringLiteral("654321")},
                           {QStringLiteral("inviteCode"), QStringLiteral("AB12")}}));
    http.answer(verify, succeeded(user()));

    auto *const finish = qobject_cast<TZRegisterFinishController *>(stack->top());
    ASSERT_TRUE(finish);
    EXPECT_TRUE(events.isEmpty());
    finish->textFiledEditChanged(QStringLiteral("股海一叶舟"));
    finish->clickNextStepBtn();
    EXPECT_EQ(http.pending(setNick).fields().value(QStringLiteral("nick")), QStringLiteral("股海一叶舟"));
    http.answer(setNick, succeeded());

    EXPECT_EQ(TZUserModel::stored().nick, QStringLiteral("股海一叶舟"));
    EXPECT_EQ(events, (QStringList{QStringLiteral("refreshHome"), QStringLiteral("toSomeController")}));
    EXPECT_FALSE(isSignInShown());
}

TEST_F(SignInTest, TheEntryNamesTheFirstProblemOfTheNumber)
{
    const struct {
        QString number;
        QString problem;
    } cases[] = {
        {"", "请输入手机号"},
        {"   ", "请输入手机号"},
        {"1381234567", "手机号格式不正确，请重新输入"},
        {"12345678901", "手机号格式不正确，请重新输入"},
        {" 13812345678", "手机号格式不正确，请重新输入"},
        {"１３８１２３４５６７８", "手机号格式不正确，请重新输入"},
        {"📱📱📱📱📱", "手机号格式不正确，请重新输入"},
        {"13812345678\n", "手机号格式不正确，请重新输入"},
        {"\u200f13812345678", "手机号格式不正确，请重新输入"},
        {QString(10'000, u'1'), "手机号格式不正确，请重新输入"},
    };
    for (const auto &[number, problem] : cases) {
        entry->setCell(number);
        entry->clickNextStepBtn();
        EXPECT_EQ(banners(), QStringList(problem)) << number.toStdString();
        EXPECT_EQ(entry->cell(), number);
    }
    EXPECT_EQ(http.count(), 0);
}

TEST_F(SignInTest, TheEntryStaysForEveryOtherAnswerAndSaysWhy)
{
    const struct {
        const char *what;
        QVariantMap answer;
        QStringList banner;
    } cases[] = {
        {"1003, with a message",
         {{QStringLiteral("success"), true},
          {QStringLiteral("bizCode"), QStringLiteral("1003")},
          {QStringLiteral("message"), QStringLiteral("号码已停用")}},
         {QStringLiteral("号码已停用")}},
        {"1003, without one", started(QStringLiteral("1003")), {QStringLiteral("交易码异常")}},
        {"no code at all", succeeded(), {QStringLiteral("交易码异常")}},
        {"nothing", {}, {QStringLiteral("交易码异常")}},
        {"a refusal without a word", refused({}), {QStringLiteral("交易码异常")}},
        {"a refusal, with a known code",
         {{QStringLiteral("success"), false},
          {QStringLiteral("bizCode"), QStringLiteral("1002")},
          {QStringLiteral("message"), QStringLiteral("短信发送过于频繁")}},
         {QStringLiteral("短信发送过于频繁")}},
    };
    for (const auto &[what, answer, banner] : cases) {
        sendNumber(answer);
        runLoop.advance(500ms);
        EXPECT_EQ(stack->top(), entry) << what;
        EXPECT_EQ(banners(), banner) << what;
        runLoop.advance(5s);
    }
}

TEST_F(SignInTest, TheBusinessCodeIsReadAsNumberAndInDataToo)
{
    for (const QVariantMap &answer : {started(1002), QVariantMap{{QStringLiteral("bizCode"), 1002}}}) {
        sendNumber(answer);
        EXPECT_EQ(stack->top()->title(), QStringLiteral("登录"));
        stack->pop();
    }
    QVariantMap inData = succeeded(QVariantMap{{QStringLiteral("bizCode"), QStringLiteral("1001")}});
    for (const char *empty : {"", "(null)"}) {
        inData.insert(QStringLiteral("bizCode"), QLatin1String(empty));
        sendNumber(inData);
        EXPECT_EQ(stack->top()->title(), QStringLiteral("注册"));
        stack->pop();
    }
}

TEST_F(SignInTest, TheNumberHandedOnIsTheOneTheCodeWentTo)
{
    entry->setCell(cell);
    entry->clickNextStepBtn();
    entry->setCell(QStringLiteral("13900000000"));
    http.answer(start, started(QStringLiteral("1002")));
    EXPECT_EQ(qobject_cast<TZLoginController *>(stack->top())->requestData.value(QStringLiteral("cell")),
              cell);
}

TEST_F(SignInTest, ARefusalLeavesTheFieldItsKeyboard)
{
    TZLoginController *const login = toLogin();
    int ended = 0;
    QObject::connect(&window, &KRWindow::editingEnded, &asker, [&ended] { ++ended; });
    login->textFiledEditChanged(QStringLiteral("000000"));
    login->clickNextStepBtn();
    http.answer(verify, refused(QStringLiteral("验证码错误")));
    EXPECT_EQ(ended, 0);
}

TEST_F(SignInTest, TwoTapsOnTheEntrySendOneCode)
{
    entry->setCell(cell);
    entry->clickNextStepBtn();
    entry->clickNextStepBtn();
    EXPECT_EQ(http.countOf(start), 1);
    http.fail(start, HttpFailure::TimedOut);
    entry->clickNextStepBtn();
    EXPECT_EQ(http.countOf(start), 2) << "a lost answer must not lock the button";
}

TEST_F(SignInTest, TheCodeScreenNamesTheFirstProblem)
{
    TZLoginController *const login = toLogin();
    const struct {
        QString bizCode;
        QString cell;
        QString code;
        QString problem;
    } cases[] = {
        {"", "", "", "请输入手机号"},
        {"", "12345", "", "请输入手机验证码"},
        {"", "12345", "12", "手机号格式不正确，请重新输入"},
        {"", "13812345678", "12345", "手机验证码格式不正确，请重新输入"},
        {"", "13812345678", "12345a", "手机验证码格式不正确，请重新输入"},
        {"", "13812345678", "１２３４５６", "手机验证码格式不正确，请重新输入"},
        {"", "13812345678", "123456", "交易码异常"},
    };
    for (const auto &[bizCode, number, code, problem] : cases) {
        login->requestData = {{QStringLiteral("bizCode"), bizCode}, {QStringLiteral("cell"), number}};
        login->textFiledEditChanged(code);
        login->clickNextStepBtn();
        EXPECT_EQ(banners(), QStringList(problem));
        EXPECT_EQ(login->code(), code);
    }
    EXPECT_EQ(http.countOf(verify), 0);
}

TEST_F(SignInTest, AMissingBusinessCodeIsHealedByAskingForACodeAgain)
{
    TZLoginController *const login = toLogin();
    login->requestData.remove(QStringLiteral("bizCode"));
    login->textFiledEditChanged(QStringLiteral("123456"));
    login->clickNextStepBtn();
    EXPECT_EQ(banners(), QStringList(QStringLiteral("交易码异常")));
    runLoop.advance(60s);
    login->clickTimeBtn();
    http.answer(start, started(QStringLiteral("1002")));
    login->clickNextStepBtn();
    EXPECT_EQ(http.pending(verify).fields().value(QStringLiteral("bizCode")), QStringLiteral("1002"));
}

TEST_F(SignInTest, TheCodeFieldKeepsSixCharacters)
{
    TZLoginController *const login = toLogin();
    login->textFiledEditChanged(QStringLiteral("123456"));
    login->textFiledEditChanged(QStringLiteral("1234567"));
    EXPECT_EQ(login->code(), QStringLiteral("123456"));
    login->textFiledEditChanged(QString(10'000, u'9'));
    EXPECT_EQ(login->code(), QStringLiteral("999999"));
}

TEST_F(SignInTest, WhateverIsPastedIntoTheCodeFieldIsCutAndNeverSentUnlessItIsSixDigits)
{
    TZLoginController *const login = toLogin();
    const struct {
        QString pasted;
        QString kept;
    } cases[] = {
        {"验证码：123456", "验证码：12"},
        {"123 456", "123 45"},
        {"😀😀😀😀", "😀😀😀"},
        {"12345😀", "12345"},
        {"12345\n", "12345\n"},
        {"\u200f123456", "\u200f12345"},
        {"١٢٣٤٥٦", "١٢٣٤٥٦"},
        {QString(10'000, u'x'), "xxxxxx"},
    };
    for (const auto &[pasted, kept] : cases) {
        login->textFiledEditChanged(pasted);
        EXPECT_EQ(login->code(), kept);
        login->clickNextStepBtn();
        EXPECT_EQ(banners(), QStringList(QStringLiteral("手机验证码格式不正确，请重新输入")))
            << kept.toStdString();
    }
    EXPECT_EQ(http.countOf(verify), 0);
}

TEST_F(SignInTest, AnInvitationIsSentAsItWasTyped)
{
    TZRegisterController *const registration = toRegistration();
    registration->textFiledEditChanged(QStringLiteral("123456"));
    for (const QString &typed : {QStringLiteral("邀请😀"), QStringLiteral("\u200fA B"),
                                 QStringLiteral("&x=1%"), QString(10'000, u'A')}) {
        registration->setInviteCode(typed);
        registration->clickNextStepBtn();
        runLoop.advance(500ms);
        EXPECT_EQ(http.pending(verify).fields().value(QStringLiteral("inviteCode")), typed);
        http.answer(verify, refused(QStringLiteral("邀请码不存在")));
        EXPECT_EQ(registration->inviteCode(), typed);
    }
}

TEST_F(SignInTest, TheButtonLightsUpATenthOfASecondAfterTheLastChange)
{
    TZRegisterController *const registration = toRegistration();
    registration->textFiledEditChanged(QStringLiteral("123456"));
    EXPECT_FALSE(registration->nextStepLit());
    runLoop.advance(99ms);
    EXPECT_FALSE(registration->nextStepLit());
    runLoop.advance(1ms);
    EXPECT_TRUE(registration->nextStepLit());
    registration->textFiledEditChanged(QStringLiteral("12 456"));
    runLoop.advance(100ms);
    EXPECT_FALSE(registration->nextStepLit());
}

TEST_F(SignInTest, TheCountdownRunsForAMinuteAndThenOffersAnotherCode)
{
    EXPECT_EQ(TZSmsCell().title(), QStringLiteral("获取验证码"));
    TZLoginController *const login = toLogin();
    const TZSmsCell *const sms = login->smsCell();
    EXPECT_EQ(http.countOf(start), 1);
    EXPECT_EQ(sms->title(), QStringLiteral("60秒后重发"));
    EXPECT_FALSE(sms->enabled());
    runLoop.advance(1s);
    EXPECT_EQ(sms->title(), QStringLiteral("59秒后重发"));
    runLoop.advance(58s);
    EXPECT_EQ(sms->title(), QStringLiteral("1秒后重发"));
    EXPECT_FALSE(sms->enabled());
    runLoop.advance(1s);
    EXPECT_EQ(sms->title(), QStringLiteral("重发验证码"));
    EXPECT_TRUE(sms->enabled());
    EXPECT_EQ(runLoop.activeTimers(), 0);
}

TEST_F(SignInTest, AskingAgainStartsTheCountdownOnlyWhenACodeWasSent)
{
    TZLoginController *const login = toLogin();
    const TZSmsCell *const sms = login->smsCell();
    login->clickTimeBtn();
    EXPECT_EQ(http.countOf(start), 1) << "not while the countdown runs";
    runLoop.advance(60s);

    login->clickTimeBtn();
    EXPECT_FALSE(sms->enabled()) << "one request at a time";
    http.answer(start, refused(QStringLiteral("短信发送过于频繁")));
    EXPECT_EQ(sms->title(), QStringLiteral("重发验证码"));
    EXPECT_TRUE(sms->enabled());

    login->clickTimeBtn();
    http.fail(start, HttpFailure::Connection);
    EXPECT_TRUE(sms->enabled());

    login->clickTimeBtn();
    EXPECT_EQ(http.pending(start).fields().value(QStringLiteral("cell")), cell);
    http.answer(start, started(QStringLiteral("1002")));
    EXPECT_EQ(sms->title(), QStringLiteral("60秒后重发"));
    EXPECT_FALSE(sms->enabled());
}

TEST_F(SignInTest, AskingAgainWithABadNumberSendsNothing)
{
    TZLoginController *const login = toLogin();
    runLoop.advance(60s);
    login->requestData.insert(QStringLiteral("cell"), QStringLiteral("12345678901"));
    login->clickTimeBtn();
    EXPECT_EQ(banners(), QStringList(wrongNumber));
    EXPECT_TRUE(login->smsCell()->enabled());
    EXPECT_EQ(http.countOf(start), 1);
}

TEST_F(SignInTest, ABurstOfTapsRegistersOnce)
{
    TZRegisterController *const registration = toRegistration();
    registration->textFiledEditChanged(QStringLiteral("123456"));
    registration->clickNextStepBtn();
    runLoop.advance(200ms);
    registration->clickNextStepBtn();
    runLoop.advance(200ms);
    registration->clickNextStepBtn();
    runLoop.advance(499ms);
    EXPECT_EQ(http.countOf(verify), 0);
    runLoop.advance(1ms);
    EXPECT_EQ(http.countOf(verify), 1);
    EXPECT_EQ(http.pending(verify).fields().value(QStringLiteral("inviteCode")), QString());
    registration->clickNextStepBtn();
    runLoop.advance(1s);
    EXPECT_EQ(http.countOf(verify), 1) << "nor while the answer is awaited";
}

TEST_F(SignInTest, LeavingTheRegistrationTakesBackTheTapAndEndsTheCountdown)
{
    TZRegisterController *const registration = toRegistration();
    registration->textFiledEditChanged(QStringLiteral("123456"));
    registration->clickNextStepBtn();
    registration->backButtonClicked();
    settle();
    EXPECT_EQ(runLoop.activeTimers(), 0);
    runLoop.advance(61s);
    EXPECT_EQ(http.countOf(verify), 0);
    EXPECT_EQ(stack->top(), entry);
}

TEST_F(SignInTest, ClosingRunsNothingWhateverIsAnsweredLater)
{
    entry->setCell(cell);
    entry->clickNextStepBtn();
    entry->leftItemClick();
    EXPECT_FALSE(isSignInShown());
    settle();
    http.answer(start, started(QStringLiteral("1002")));
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(SignInTest, GoingBackWhileTheCodeIsCheckedLeavesTheUserSignedOut)
{
    for (const auto &[bizCode, stillSeen] : {std::pair{"1001", false}, {"1002", false}, {"1002", true}}) {
        stack->setProperty("animated", stillSeen);
        sendNumber(started(QLatin1String(bizCode)));
        auto *const code = qobject_cast<TZSmsCodeController *>(stack->top());
        code->textFiledEditChanged(QStringLiteral("123456"));
        code->clickNextStepBtn();
        runLoop.advance(500ms);
        code->backButtonClicked();
        settle();
        http.answer(verify, succeeded(user()));
        EXPECT_EQ(TZUserModel::stored().api_token, QString()) << bizCode << stillSeen;
        EXPECT_EQ(stack->top(), entry);
        EXPECT_TRUE(events.isEmpty());
    }
}

TEST_F(SignInTest, ARefusedCodeKeepsTheScreenAndTheTypedText)
{
    TZLoginController *const login = toLogin();
    login->textFiledEditChanged(QStringLiteral("000000"));
    login->clickNextStepBtn();
    http.answer(verify, refused(QStringLiteral("验证码错误")));
    EXPECT_EQ(stack->top(), login);
    EXPECT_EQ(banners(), QStringList(QStringLiteral("验证码错误")));
    EXPECT_EQ(login->code(), QStringLiteral("000000"));
    EXPECT_TRUE(events.isEmpty());
    login->clickNextStepBtn();
    EXPECT_EQ(http.countOf(verify), 2);
}

TEST_F(SignInTest, LeavingAScreenTakesItsBannersAwayAndEndsWhatIsEditedOnIt)
{
    TZLoginController *const login = toLogin();
    int ended = 0;
    QObject::connect(login, &KRBaseController::editingEnded, &asker, [&ended] { ++ended; });
    int endedElsewhere = 0;
    QObject::connect(&window, &KRWindow::editingEnded, &asker, [&endedElsewhere] { ++endedElsewhere; });
    login->clickNextStepBtn();
    EXPECT_EQ(banners().size(), 1);
    KRNavigationController *const cover = window.present(std::make_unique<KRBaseController>());
    EXPECT_TRUE(banners().isEmpty());
    EXPECT_EQ(ended, 1);
    cover->dismiss();
    login->clickNextStepBtn();
    login->backButtonClicked();
    EXPECT_TRUE(banners().isEmpty());
    EXPECT_EQ(ended, 2);
    EXPECT_EQ(endedElsewhere, 0) << "what is edited on the screen that comes is its own";
}

TEST_F(SignInTest, AScreenThatComesBackWhileItsRequestRunsSaysSo)
{
    TZLoginController *const login = toLogin();
    login->textFiledEditChanged(QStringLiteral("123456"));
    login->clickNextStepBtn();
    KRNavigationController *const cover = window.present(std::make_unique<KRBaseController>());
    EXPECT_FALSE(overlays.isWaiting());
    cover->dismiss();
    EXPECT_TRUE(overlays.isWaiting());
    http.answer(verify, refused(QStringLiteral("验证码错误")));
    EXPECT_FALSE(overlays.isWaiting());
}

TEST_F(SignInTest, TheAgreementIsShownAsAPageOfTheService)
{
    toRegistration()->clickAgreementBtn();
    EXPECT_EQ(router.calls, QStringList(QStringLiteral(
                                "openWeb https://service.test/mobile/software_permission_agreement.html")));
}

TEST_F(SignInTest, ANicknameOfTenIsAcceptedAndTheFieldNeverHoldsEleven)
{
    TZRegisterFinishController *const finish = toNickname();
    finish->clickNextStepBtn();
    EXPECT_EQ(banners(), QStringList(QStringLiteral("请输入昵称")));
    finish->textFiledEditChanged(QStringLiteral("一二三四五六七八九十百"));
    EXPECT_EQ(finish->nick(), QStringLiteral("一二三四五六七八九十"));
    finish->clickNextStepBtn();
    finish->clickNextStepBtn();
    EXPECT_EQ(http.countOf(setNick), 1);
    const QString sent = QStringLiteral("一二三四五六七八九十");
    EXPECT_EQ(http.pending(setNick).fields().value(QStringLiteral("nick")), sent);
    http.answer(setNick, refused(QStringLiteral("昵称已被使用")));
    EXPECT_EQ(stack->top(), finish);
    finish->textFiledEditChanged(sent + QStringLiteral("百千万"), true);
    finish->clickNextStepBtn();
    EXPECT_EQ(http.pending(setNick).fields().value(QStringLiteral("nick")), sent)
        << "nothing longer goes out";
    http.answer(setNick, refused(QStringLiteral("昵称已被使用")));
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(SignInTest, ClosingTheNicknameLeavesTheUserSignedIn)
{
    toNickname()->leftItemClick();
    EXPECT_FALSE(isSignInShown());
    EXPECT_EQ(TZUserModel::stored().api_token, QStringLiteral("fresh"));
    EXPECT_TRUE(events.isEmpty());
}

TEST(Nickname, LimitsAreCountedInUtf16Units)
{
    EXPECT_EQ(limitedNickname(QStringLiteral("1234567890")), QStringLiteral("1234567890"));
    EXPECT_EQ(limitedNickname(QStringLiteral("12345678😀")), QStringLiteral("12345678😀"));
    EXPECT_EQ(limitedNickname(QStringLiteral("123456789😀")), QStringLiteral("123456789"));
    EXPECT_EQ(limitedNickname(QStringLiteral("\u200f１２３４５６７８９０")),
              QStringLiteral("\u200f１２３４５６７８９"));
    EXPECT_EQ(limitedNickname(QString(10'000, u'n')), QString(10, u'n'));
    EXPECT_EQ(nicknameProblem(QStringLiteral(" ")), QStringLiteral("请输入昵称"));
    EXPECT_EQ(nicknameProblem(QString(11, u'股')), QString());
    EXPECT_EQ(nicknameProblem(QString(20, u'股')), QString());
    EXPECT_EQ(nicknameProblem(QString(21, u'股')), QStringLiteral("昵称最多十个汉字"));
}
