#include "account/screens/TZEnsurePasswordController.h"
#include "account/screens/TZModifyNicknameController.h"
#include "account/screens/TZPersonalController.h"
#include "account/screens/TZSetPasswordController.h"
#include "account/screens/TZVerifyIDController.h"
#include "account/screens/TZVerifyPhoneController.h"
#include "core/session/NotificationNames.h"
#include "core/session/SettingsKeys.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRWindow.h"
#include "core/shell/TZInfoAlertView.h"
#include "tests/support/TestPlatform.h"

#include <QPointer>

using namespace std::chrono_literals;

namespace {
const QString canUpdate = "user/can_update_password";
const QString sendCode = "user/update_password_sms";
const QString verifyCode = "user/update_verify";
const QString verifyID = "user/verify_id_card";
const QString update = "user/update_password";
const QString setPassword = "user/set_password";
const QString setNick = "user/set_nick";
const QString idCard = "11010119900307001X";
const QString password = "246810";

QVariantMap codeSent()
{
    return {{"success", true}, {"bizCode", "1003"}};
}

/// A reset as it was handed on to the two password screens.
QVariantMap collected()
{
    return {{"bizCode", "1003"}, {"userInput", "654321"}, {"idCard", idCard}};
}
} // namespace

/// My account in the window's content, the screens under test on top of it.
class PersonalTest : public PlatformTest {
protected:
    PersonalTest()
    {
        setUser("张三丰", "旧名");
        window.setRoot(std::make_unique<KRBaseController>());
        stack = window.present(std::make_unique<KRBaseController>());
        observed = {};
        notifications.observe(&observer, NotificationNames::refreshAccount,
                              [this](const QVariant &) { observed.append(state()); });
    }

    void setUser(const QString &name, const QString &nick)
    {
        settings.values.insert(
            SettingsKeys::user,
            QVariantMap{{"api_token", "t0ken"}, {"cell", "13812345678"}, {"name", name}, {"nick", nick}});
    }
    template <typename Screen> Screen *push() { return push(std::make_unique<Screen>()); }
    template <typename Screen> Screen *push(std::unique_ptr<Screen> screen)
    {
        Screen *const pushed = screen.get();
        stack->push(std::move(screen));
        return pushed;
    }
    template <typename Screen> Screen *top() { return qobject_cast<Screen *>(stack->top()); }

    TZEnsurePasswordController *toEnsure(bool isResetPassword)
    {
        auto set = std::make_unique<TZSetPasswordController>();
        set->isResetPassword = isResetPassword;
        set->isFirstShow = !isResetPassword;
        if (isResetPassword)
            set->requestData = collected();
        push(std::move(set))->setInput(password);
        observed.clear();
        return top<TZEnsurePasswordController>();
    }
    TZInfoAlertView *alert()
    {
        return window.dialogs()->count() == 0 ? nullptr
                                              : qobject_cast<TZInfoAlertView *>(window.dialogs()->at(0));
    }
    QString said() const { return banners().join(u' '); }
    /// How deep the stack is, and the banner that is up.
    QString state() { return QString::number(stack->depth()) + said(); }

    QObject observer;
    QStringList observed;
    KRWindow window;
    QPointer<KRNavigationController> stack;
};

TEST_F(PersonalTest, AForgottenPasswordIsResetStepByStepAndNoStepGoesOnAfterARefusal)
{
    // Sends until an answer is awaited that may be a success.
    const auto breakDown = [this](const QString &path, const std::function<void()> &send) {
        KRBaseController *const before = stack->top();
        send();
        http.answer(path, refused("请先设置交易密码"));
        EXPECT_EQ(said(), "请先设置交易密码") << path.toStdString();
        send();
        http.fail(path, HttpFailure::Connection);
        EXPECT_EQ(stack->top(), before);
        send();
        send();
        EXPECT_EQ(http.countOf(path), 3) << path.toStdString();
    };
    auto *const personal = push<TZPersonalController>();
    EXPECT_EQ(personal->cell() + personal->name(), "138****5678张**");
    breakDown(canUpdate, [personal] { personal->tradePwdRowClick(); });
    EXPECT_EQ(http.pending(canUpdate).request.method, "GET");
    http.answer(canUpdate, succeeded("1"));

    auto *const phone = top<TZVerifyPhoneController>();
    ASSERT_TRUE(phone);
    EXPECT_EQ(http.pending(sendCode).fields(), QVariantMap());
    EXPECT_EQ(phone->smsCell()->leftTime(), 0) << "nothing was sent yet";
    http.answer(sendCode, refused("短信发送过于频繁"));
    EXPECT_TRUE(phone->smsCell()->enabled());
    EXPECT_EQ(phone->smsCell()->title(), "获取验证码");
    phone->clickTimeBtn();
    http.answer(sendCode, succeeded());
    phone->textFiledEditChanged("654321");
    phone->clickNextStepBtn();
    EXPECT_EQ(said(), "交易码异常") << "that answer carried none";
    runLoop.advance(60s);
    phone->clickTimeBtn();
    http.answer(sendCode, codeSent());
    EXPECT_EQ(phone->smsCell()->leftTime(), 60);
    EXPECT_EQ(phone->headerText(), "已发送短信验证码至138****5678，请在输入框内填写验证码");
    breakDown(verifyCode, [phone] { phone->clickNextStepBtn(); });
    EXPECT_EQ(http.pending(verifyCode).fields(), (QVariantMap{{"bizCode", "1003"}, {"userInput", "654321"}}));
    http.answer(verifyCode, succeeded());

    auto *check = top<TZVerifyIDController>();
    ASSERT_TRUE(check);
    EXPECT_EQ(check->title(), "身份验证");
    for (const auto &[number, problem] : {std::pair("", "请输入身份证号"), std::pair("  ", "请输入身份证号"),
                                          std::pair("1101011990030700XX", "身份证格式不正确，请重新输入")}) {
        check->setIdCard(number);
        check->nextBtnClick();
        EXPECT_EQ(said(), problem);
    }
    check->setIdCard(idCard);
    breakDown(verifyID, [check] { check->nextBtnClick(); });
    EXPECT_EQ(http.pending(verifyID).fields(), (QVariantMap{{"idCard", idCard}}));
    check->backButtonClicked();
    http.answer(verifyID, succeeded());
    EXPECT_EQ(stack->top(), phone) << "who went back is not led on by a late answer";
    phone->clickNextStepBtn();
    http.answer(verifyCode, succeeded());
    check = top<TZVerifyIDController>();
    check->setIdCard(idCard);
    check->nextBtnClick();
    EXPECT_TRUE(observed.isEmpty());
    http.answer(verifyID, succeeded());

    auto *const set = top<TZSetPasswordController>();
    ASSERT_TRUE(set);
    EXPECT_EQ(set->title(), "重置密码");
    EXPECT_EQ(set->requestData, collected());
    EXPECT_EQ(observed.size(), 1) << "my account is told as the screen is loaded";
    set->setInput(password);

    auto *const ensure = top<TZEnsurePasswordController>();
    ASSERT_TRUE(ensure);
    EXPECT_EQ(ensure->title(), "确认重置密码");
    ensure->setInput(password);
    QVariantMap sent = collected();
    sent.insert("password", password);
    EXPECT_EQ(http.pending(update).fields(), sent);
    observed.clear();
    http.answer(update, succeeded());
    EXPECT_EQ(observed, QStringList("6")) << "told while the stack still stands, no banner yet";
    EXPECT_EQ(stack->depth(), 1);
    runLoop.advance(500ms);
    EXPECT_EQ(said(), "设置成功");
}

TEST_F(PersonalTest, TheFirstPasswordIsSetInAStackOfItsOwn)
{
    auto first = std::make_unique<TZSetPasswordController>();
    first->isFirstShow = true;
    TZSetPasswordController *const set = first.get();
    stack = window.present(std::move(first));
    EXPECT_EQ(set->title(), "输入交易密码");
    EXPECT_EQ(set->leftItemImage(), "common_close_gray");
    set->setInput("2468");
    EXPECT_EQ(stack->depth(), 1);
    set->setInput("24 68 10 9");
    auto *const ensure = top<TZEnsurePasswordController>();
    ASSERT_TRUE(ensure);
    EXPECT_EQ(ensure->title(), "设置交易密码");
    observed.clear();
    ensure->setInput(password);
    EXPECT_EQ(http.pending(setPassword).fields(), (QVariantMap{{"password", password}}));
    http.answer(setPassword, succeeded());
    EXPECT_EQ(window.presented()->count(), 1);
    EXPECT_TRUE(observed.isEmpty());
    runLoop.advance(500ms);
    EXPECT_EQ(said(), "设置成功");
}

TEST_F(PersonalTest, TheDotsMirrorTheDigits)
{
    auto *const set = push<TZSetPasswordController>();
    const auto dots = [set] {
        return QList<bool>{set->button1(), set->button2(), set->button3(),
                           set->button4(), set->button5(), set->button6()};
    };
    set->setInput("１2三4");
    EXPECT_EQ(set->input(), "24") << "digits only";
    EXPECT_EQ(dots(), (QList<bool>{true, true, false, false, false, false}));
    set->setInput("12 34 56 7");
    EXPECT_EQ(dots(), QList<bool>(6, true));
    top<TZEnsurePasswordController>()->backButtonClicked();
    EXPECT_EQ(dots(), QList<bool>(6, false)) << "who comes back starts again";
}

TEST_F(PersonalTest, AMistypedRefusedOrLostPasswordStaysAndCanBeSentAgain)
{
    for (const auto &[isResetPassword, path] : {std::pair(true, update), std::pair(false, setPassword)}) {
        TZEnsurePasswordController *const ensure = toEnsure(isResetPassword);
        ensure->setInput("246811");
        EXPECT_EQ(said(), "两次密码输入不一致，请重新输入");
        EXPECT_EQ(ensure->input(), QString());
        EXPECT_EQ(http.countOf(path), 0);

        QList<bool> told;
        const auto listening = QObject::connect(ensure, &KRBaseController::barChanged, &observer,
                                                [&] { told.append(ensure->canBeLeft()); });
        ensure->setInput(password);
        ensure->setInput(password + "1");
        EXPECT_EQ(http.countOf(path), 1) << "one at a time";
        ensure->backButtonClicked();
        EXPECT_EQ(top<TZEnsurePasswordController>(), ensure) << "its outcome must be seen";
        http.answer(path, refused("请先完成身份验证"));
        EXPECT_EQ(told, (QList<bool>{false, true}));
        QObject::disconnect(listening);
        EXPECT_EQ(said(), "请先完成身份验证");
        EXPECT_EQ(top<TZEnsurePasswordController>(), ensure);
        EXPECT_EQ(ensure->input(), password);
        ensure->setInput(password);
        http.fail(path, HttpFailure::TimedOut);
        ensure->setInput(password);
        EXPECT_EQ(http.countOf(path), 3);
        EXPECT_TRUE(observed.isEmpty());
    }
}

TEST_F(PersonalTest, LeavingTheNewPasswordIsAskedAbout)
{
    push<TZPersonalController>();
    auto *const set = push<TZSetPasswordController>();
    set->backButtonClicked();
    ASSERT_TRUE(alert());
    EXPECT_EQ(alert()->titleText() + alert()->ensureText(), "退出操作是否放弃本次操作");
    EXPECT_EQ(alert()->leftTitle() + alert()->rightTitle(), "取消退出");
    alert()->leftBtnClick();
    EXPECT_EQ(stack->top(), set);
    set->leftItemClick();
    alert()->rightBtnClick();
    EXPECT_EQ(stack->depth(), 1);

    auto first = std::make_unique<TZSetPasswordController>();
    first->isFirstShow = true;
    window.present(std::move(first))->top()->leftItemClick();
    alert()->rightBtnClick();
    EXPECT_EQ(window.topStack(), stack);
    EXPECT_EQ(http.count(), 0);
}

TEST_F(PersonalTest, TheNicknameIsChangedFromThePersonalPage)
{
    auto *const personal = push<TZPersonalController>();
    int changes = 0;
    QObject::connect(personal, &TZPersonalController::userChanged, &observer, [&changes] { ++changes; });
    personal->nickRowClick();
    auto *const screen = top<TZModifyNicknameController>();
    ASSERT_TRUE(screen);
    EXPECT_EQ(screen->title() + screen->leftItemImage(), "修改昵称common_back_gray");
    screen->textFiledEditChanged("一二三四五六七八九十百");
    screen->saveBtnClick();
    screen->saveBtnClick();
    EXPECT_EQ(http.countOf(setNick), 1);
    http.answer(setNick, succeeded(QVariantMap{{"nick", "别的"}}));
    EXPECT_EQ(stack->top(), personal);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(personal->nick(), "一二三四五六七八九十") << "what was sent";
    for (const char *nothing : {"", "  ", "(null)"}) {
        setUser(nothing, nothing);
        EXPECT_EQ(personal->nick() + personal->name() + personal->displayName(), "未设置未实名138****5678");
    }
    runLoop.advance(500ms);
    EXPECT_EQ(said(), "设置成功");
}

TEST_F(PersonalTest, AMissingNicknameIsSetInAStackOfItsOwn)
{
    for (const bool gone : {true, false}) {
        auto nickname = std::make_unique<TZModifyNicknameController>();
        nickname->isSetNickname = true;
        nickname->isFirstShow = true;
        TZModifyNicknameController *const screen = nickname.get();
        window.present(std::move(nickname));
        EXPECT_EQ(screen->title() + screen->leftItemImage(), "设置昵称common_close_gray");
        if (gone) {
            screen->backButtonClicked();
        } else {
            screen->textFiledEditChanged("小雨");
            screen->saveBtnClick();
            http.answer(setNick, refused("昵称已被使用"));
            EXPECT_EQ(window.topStack()->top(), screen);
            screen->saveBtnClick();
            http.answer(setNick, succeeded());
        }
        EXPECT_EQ(window.topStack(), stack);
    }
}
