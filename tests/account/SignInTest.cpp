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
const QString start = "user/start";
const QString verify = "user/verify";
const QString setNick = "user/set_nick";
const QString cell = "13812345678";
const QString wrongNumber = "手机号格式不正确，请重新输入";
const QString wrongCode = "手机验证码格式不正确，请重新输入";
const QString noBizCode = "交易码异常";

QVariantMap started(const QVariant &bizCode)
{
    return {{"success", true}, {"bizCode", bizCode}};
}
} // namespace

class SignInTest : public PlatformTest {
protected:
    SignInTest()
    {
        window.setRoot(std::make_unique<KRBaseController>());
        auto screen = std::make_unique<TZCheckCellController>(router);
        entry = screen.get();
        screen->setToSomeController(
            {&asker, [this] { events.append(isSignInShown() ? "toSomeController" : "too late"); }});
        stack = window.present(std::move(screen));
        notifications.observe(&asker, NotificationNames::refreshHome,
                              [this](const QVariant &) { events.append("refreshHome"); });
    }

    /// The field is edited again before the answer comes.
    void sendNumber(const QVariantMap &answer)
    {
        entry->setCell(cell);
        entry->clickNextStepBtn();
        entry->setCell("13900000000");
        http.answer(start, answer);
    }
    template <typename Screen> Screen *top() { return qobject_cast<Screen *>(stack->top()); }
    TZLoginController *toLogin()
    {
        sendNumber(started("1002"));
        return top<TZLoginController>();
    }
    TZRegisterController *toRegistration()
    {
        sendNumber(started("1001"));
        return top<TZRegisterController>();
    }
    /// Goes on half a second later, when a registration has taken the tap.
    void enter(const QString &code)
    {
        top<TZSmsCodeController>()->textFiledEditChanged(code);
        top<TZSmsCodeController>()->clickNextStepBtn();
        runLoop.advance(500ms);
    }
    void accept() { http.answer(verify, succeeded(QVariantMap{{"api_token", "fresh"}, {"cell", cell}})); }
    TZRegisterFinishController *toNickname()
    {
        toRegistration();
        enter("123456");
        accept();
        return top<TZRegisterFinishController>();
    }
    bool isSignInShown() { return window.presented()->count() > 0; }
    QString said() const { return banners().join(u'|'); }
    QString sent(const QString &path, const QString &field)
    {
        return http.pending(path).fields().value(field).toString();
    }

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
    EXPECT_EQ(login->title(), "登录");
    EXPECT_EQ(login->headerText(), "已发送短信验证码至138****5678，请在输入框内填写验证码");
    EXPECT_EQ(login->requestData, (QVariantMap{{"bizCode", "1002"}, {"cell", cell}}));
    enter("123456");
    EXPECT_TRUE(overlays.isWaiting());
    EXPECT_EQ(http.pending(verify).fields(), (QVariantMap{{"bizCode", "1002"}, {"userInput", "123456"}}));
    EXPECT_TRUE(events.isEmpty());
    accept();
    EXPECT_FALSE(overlays.isWaiting());
    EXPECT_EQ(TZUserModel::stored().api_token, "fresh");
    EXPECT_EQ(events, (QStringList{"refreshHome", "toSomeController"}));
    EXPECT_FALSE(isSignInShown());
}

TEST_F(SignInTest, ANewNumberRegistersAndChoosesANickname)
{
    TZRegisterController *const registration = toRegistration();
    ASSERT_TRUE(registration);
    EXPECT_EQ(registration->title(), "注册");
    registration->setInviteCode("AB12");
    enter("654321");
    EXPECT_EQ(http.pending(verify).fields(),
              (QVariantMap{{"bizCode", "1001"}, {"userInput", "654321"}, {"inviteCode", "AB12"}}));
    accept();

    auto *const finish = top<TZRegisterFinishController>();
    ASSERT_TRUE(finish);
    EXPECT_TRUE(events.isEmpty());
    finish->textFiledEditChanged("股海一叶舟");
    finish->clickNextStepBtn();
    http.answer(setNick, succeeded());
    EXPECT_EQ(TZUserModel::stored().nick, "股海一叶舟");
    EXPECT_EQ(events, (QStringList{"refreshHome", "toSomeController"}));
    EXPECT_FALSE(isSignInShown());
}

TEST_F(SignInTest, TheEntryNamesTheFirstProblemOfTheNumberAndSendsOneCodeForTwoTaps)
{
    for (const auto &[number, problem] : {std::pair<QString, QString>{"", "请输入手机号"},
                                          {"   ", "请输入手机号"},
                                          {"1381234567", wrongNumber},
                                          {" 13812345678", wrongNumber},
                                          {"13812345678\n", wrongNumber}}) {
        entry->setCell(number);
        entry->clickNextStepBtn();
        EXPECT_EQ(said(), problem) << number.toStdString();
        EXPECT_EQ(entry->cell(), number);
    }
    EXPECT_EQ(http.count(), 0);
    entry->setCell(cell);
    entry->clickNextStepBtn();
    entry->clickNextStepBtn();
    EXPECT_EQ(http.countOf(start), 1);
    http.fail(start, HttpFailure::TimedOut);
    entry->clickNextStepBtn();
    EXPECT_EQ(http.countOf(start), 2) << "a lost answer must not lock the button";
}

TEST_F(SignInTest, TheEntryStaysForEveryOtherAnswerAndSaysWhy)
{
    const auto saying = [](QVariantMap answer, const QString &message) {
        answer.insert("message", message);
        return answer;
    };
    const std::pair<QVariantMap, QString> cases[] = {
        {saying(started("1003"), "号码已停用"), "号码已停用"},
        {started("1003"), noBizCode},
        {succeeded(), noBizCode},
        {{}, noBizCode},
        {refused({}), noBizCode},
        {saying({{"success", false}, {"bizCode", "1002"}}, "短信发送过于频繁"), "短信发送过于频繁"},
    };
    for (const auto &[answer, banner] : cases) {
        sendNumber(answer);
        runLoop.advance(500ms);
        EXPECT_EQ(stack->top(), entry);
        EXPECT_EQ(said(), banner);
        runLoop.advance(5s);
    }
}

TEST_F(SignInTest, TheBusinessCodeIsReadAsNumberAndInDataToo)
{
    QVariantMap inData = succeeded(QVariantMap{{"bizCode", "1001"}});
    QVariantMap inDataBesideNone = inData;
    inData.insert("bizCode", "");
    inDataBesideNone.insert("bizCode", "(null)");
    const std::pair<QVariantMap, QString> cases[] = {
        {started(1002), "登录"}, {{{"bizCode", 1002}}, "登录"}, {inData, "注册"}, {inDataBesideNone, "注册"}};
    for (const auto &[answer, title] : cases) {
        sendNumber(answer);
        EXPECT_EQ(stack->top()->title(), title);
        stack->pop();
    }
}

TEST_F(SignInTest, TheCodeScreenNamesTheFirstProblem)
{
    TZLoginController *const login = toLogin();
    const struct {
        QString cell, code, problem;
    } cases[] = {
        {"", "", "请输入手机号"},   {"12345", "", "请输入手机验证码"}, {"12345", "12", wrongNumber},
        {cell, "12345", wrongCode}, {cell, "123456", noBizCode},
    };
    for (const auto &each : cases) {
        login->requestData = {{"cell", each.cell}};
        enter(each.code);
        EXPECT_EQ(said(), each.problem);
        EXPECT_EQ(login->code(), each.code);
    }
    EXPECT_EQ(http.countOf(verify), 0);

    runLoop.advance(60s);
    login->clickTimeBtn();
    http.answer(start, started("1002"));
    login->clickNextStepBtn();
    EXPECT_EQ(sent(verify, "bizCode"), "1002") << "asking for a code again heals it";
}

TEST_F(SignInTest, WhateverIsPastedIntoTheCodeFieldIsCutAndNeverSentUnlessItIsSixDigits)
{
    TZLoginController *const login = toLogin();
    const std::pair<QString, QString> cases[] = {{"验证码：123456", "验证码：12"},
                                                 {"123 456", "123 45"},
                                                 {"😀😀😀😀", "😀😀😀"},
                                                 {"12345😀", "12345"},
                                                 {"12345\n", "12345\n"},
                                                 {"\u200f123456", "\u200f12345"},
                                                 {"١٢٣٤٥٦", "١٢٣٤٥٦"},
                                                 {"１２３４５６", "１２３４５６"},
                                                 {QString(10'000, u'x'), "xxxxxx"}};
    for (const auto &[pasted, kept] : cases) {
        enter(pasted);
        EXPECT_EQ(login->code(), kept);
        EXPECT_EQ(said(), wrongCode) << kept.toStdString();
    }
    EXPECT_EQ(http.countOf(verify), 0);
    enter("1234567");
    EXPECT_EQ(sent(verify, "userInput"), "123456");
}

TEST_F(SignInTest, AnInvitationIsSentAsItWasTyped)
{
    TZRegisterController *const registration = toRegistration();
    for (const QString &typed :
         {QString(), QString("邀请😀"), QString("\u200fA B"), QString("&x=1%"), QString(10'000, u'A')}) {
        registration->setInviteCode(typed);
        enter("123456");
        EXPECT_EQ(sent(verify, "inviteCode"), typed);
        http.answer(verify, refused("邀请码不存在"));
        EXPECT_EQ(registration->inviteCode(), typed);
    }
}

TEST_F(SignInTest, TheButtonLightsUpATenthOfASecondAfterTheLastChange)
{
    TZRegisterController *const registration = toRegistration();
    registration->textFiledEditChanged("123456");
    runLoop.advance(99ms);
    EXPECT_FALSE(registration->nextStepLit());
    runLoop.advance(1ms);
    EXPECT_TRUE(registration->nextStepLit());
    registration->textFiledEditChanged("12 456");
    runLoop.advance(100ms);
    EXPECT_FALSE(registration->nextStepLit());
}

TEST_F(SignInTest, TheCountdownRunsForAMinuteAndThenOffersAnotherCode)
{
    EXPECT_EQ(TZSmsCell().title(), "获取验证码");
    TZLoginController *const login = toLogin();
    const TZSmsCell *const sms = login->smsCell();
    const auto state = [sms] { return sms->title() + (sms->enabled() ? "" : " -"); };
    EXPECT_EQ(state(), "60秒后重发 -");
    login->clickTimeBtn();
    EXPECT_EQ(http.countOf(start), 1) << "not while the countdown runs";
    runLoop.advance(1s);
    EXPECT_EQ(state(), "59秒后重发 -");
    runLoop.advance(58s);
    EXPECT_EQ(state(), "1秒后重发 -");
    runLoop.advance(1s);
    EXPECT_EQ(state(), "重发验证码");
    EXPECT_EQ(runLoop.activeTimers(), 0);

    login->requestData.insert("cell", "12345678901");
    login->clickTimeBtn();
    EXPECT_EQ(said(), wrongNumber);
    EXPECT_EQ(http.countOf(start), 1);
    login->requestData.insert("cell", cell);
    login->clickTimeBtn();
    EXPECT_EQ(state(), "重发验证码 -") << "one request at a time";
    http.answer(start, refused("短信发送过于频繁"));
    EXPECT_EQ(state(), "重发验证码") << "no code was sent";
    login->clickTimeBtn();
    http.fail(start, HttpFailure::Connection);
    EXPECT_EQ(state(), "重发验证码");
    login->clickTimeBtn();
    EXPECT_EQ(sent(start, "cell"), cell);
    http.answer(start, started("1002"));
    EXPECT_EQ(state(), "60秒后重发 -");
}

TEST_F(SignInTest, ABurstOfTapsRegistersOnce)
{
    TZRegisterController *const registration = toRegistration();
    registration->textFiledEditChanged("123456");
    for (int tap = 0; tap < 3; ++tap) {
        registration->clickNextStepBtn();
        runLoop.advance(499ms);
    }
    EXPECT_EQ(http.countOf(verify), 0);
    runLoop.advance(1ms);
    EXPECT_EQ(http.countOf(verify), 1);
    registration->clickNextStepBtn();
    runLoop.advance(1s);
    EXPECT_EQ(http.countOf(verify), 1) << "nor while the answer is awaited";
}

TEST_F(SignInTest, LeavingTakesBackWhatWasAskedFor)
{
    TZRegisterController *const registration = toRegistration();
    registration->textFiledEditChanged("123456");
    registration->clickNextStepBtn();
    registration->backButtonClicked();
    settle();
    EXPECT_EQ(runLoop.activeTimers(), 0);
    runLoop.advance(61s);
    EXPECT_EQ(http.countOf(verify), 0);
    EXPECT_EQ(stack->top(), entry);

    entry->setCell(cell);
    entry->clickNextStepBtn();
    entry->leftItemClick();
    EXPECT_FALSE(isSignInShown());
    settle();
    http.answer(start, started("1002"));
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(SignInTest, GoingBackWhileTheCodeIsCheckedLeavesTheUserSignedOut)
{
    for (const auto &[bizCode, stillSeen] : {std::pair{"1001", false}, {"1002", false}, {"1002", true}}) {
        stack->setProperty("animated", stillSeen);
        sendNumber(started(bizCode));
        enter("123456");
        stack->top()->backButtonClicked();
        settle();
        accept();
        EXPECT_EQ(TZUserModel::stored().api_token, QString()) << bizCode << stillSeen;
        EXPECT_EQ(stack->top(), entry);
        EXPECT_TRUE(events.isEmpty());
    }
}

TEST_F(SignInTest, ASuccessThatNamesNobodyKeepsTheScreenAndSignsNobodyIn)
{
    for (const char *bizCode : {"1001", "1002"}) {
        sendNumber(started(QLatin1String(bizCode)));
        auto *const step = qobject_cast<TZSmsCodeController *>(stack->top());
        step->textFiledEditChanged(QStringLiteral("123456"));
        step->clickNextStepBtn();
        runLoop.advance(500ms);
        http.answer(verify, succeeded(QVariant()));
        EXPECT_EQ(stack->top(), step) << bizCode;
        EXPECT_EQ(step->code(), QStringLiteral("123456"));
        EXPECT_EQ(banners(), QStringList(QStringLiteral("加载失败")));
        EXPECT_FALSE(overlays.isWaiting());
        EXPECT_FALSE(Service::isLogin());
        EXPECT_TRUE(events.isEmpty());
        stack->pop();
    }
}

TEST_F(SignInTest, ACodeThatIsCheckedShowsTheIndicatorAndRefusedKeepsTheScreenTheTextAndTheKeyboard)
{
    TZLoginController *const login = toLogin();
    enter("000000");
    KRNavigationController *const cover = window.present(std::make_unique<KRBaseController>());
    EXPECT_FALSE(overlays.isWaiting());
    cover->dismiss();
    EXPECT_TRUE(overlays.isWaiting()) << "it is still being checked";
    int ended = 0;
    QObject::connect(&window, &KRWindow::editingEnded, &asker, [&ended] { ++ended; });
    http.answer(verify, refused("验证码错误"));
    EXPECT_EQ(ended, 0);
    EXPECT_EQ(stack->top(), login);
    EXPECT_EQ(said(), "验证码错误");
    EXPECT_EQ(login->code(), "000000");
    login->clickNextStepBtn();
    EXPECT_EQ(http.countOf(verify), 2);
}

TEST_F(SignInTest, TheAgreementIsShownAsAPageOfTheService)
{
    toRegistration()->clickAgreementBtn();
    EXPECT_EQ(router.calls,
              QStringList("openWeb https://service.test/mobile/software_permission_agreement.html"));
}

TEST_F(SignInTest, ANicknameOfTenIsAcceptedAndNothingLongerGoesOut)
{
    TZRegisterFinishController *const finish = toNickname();
    finish->clickNextStepBtn();
    EXPECT_EQ(said(), "请输入昵称");
    const QString ten = "一二三四五六七八九十";
    for (const bool composing : {false, true}) {
        finish->textFiledEditChanged(ten + "百千万", composing);
        EXPECT_EQ(finish->nick(), composing ? ten + "百千万" : ten);
        finish->clickNextStepBtn();
        finish->clickNextStepBtn();
        EXPECT_EQ(sent(setNick, "nick"), ten);
        http.answer(setNick, refused("昵称已被使用"));
        EXPECT_EQ(stack->top(), finish);
    }
    EXPECT_EQ(http.countOf(setNick), 2) << "one at a time";
    finish->textFiledEditChanged(QString(21, u'股'), true);
    finish->clickNextStepBtn();
    EXPECT_EQ(said(), "昵称最多十个汉字");
    EXPECT_EQ(http.countOf(setNick), 2);
    EXPECT_TRUE(events.isEmpty());
    finish->leftItemClick();
    EXPECT_FALSE(isSignInShown());
    EXPECT_EQ(TZUserModel::stored().api_token, "fresh") << "who closes it is signed in all the same";
    EXPECT_TRUE(events.isEmpty());
}

TEST(Nickname, LimitsAreCountedInUtf16Units)
{
    EXPECT_EQ(limitedNickname("12345678😀"), "12345678😀");
    EXPECT_EQ(limitedNickname("123456789😀"), "123456789");
    EXPECT_EQ(limitedNickname("\u200f１２３４５６７８９０"), "\u200f１２３４５６７８９");
    EXPECT_EQ(nicknameProblem(" "), "请输入昵称");
    EXPECT_EQ(nicknameProblem(QString(20, u'股')), QString());
    EXPECT_EQ(nicknameProblem(QString(21, u'股')), "昵称最多十个汉字");
}
