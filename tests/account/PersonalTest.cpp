#include "account/screens/TZEnsurePasswordController.h"
#include "account/screens/TZModifyNicknameController.h"
#include "account/screens/TZPersonalController.h"
#include "account/screens/TZSetPasswordController.h"
#include "account/screens/TZVerifyIDController.h"
#include "account/screens/TZVerifyPhoneController.h"
#include "core/session/NotificationNames.h"
#include "core/session/SettingsKeys.h"
#include "core/session/TZUserModel.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRWindow.h"
#include "core/shell/TZInfoAlertView.h"
#include "tests/support/TestPlatform.h"

#include <QPointer>

using namespace std::chrono_literals;

namespace {
const QString canUpdate = QStringLiteral("user/can_update_password");
const QString sendCode = QStringLiteral("user/update_password_sms");
const QString verifyCode = QStringLiteral("user/update_verify");
const QString verifyID = QStringLiteral("user/verify_id_card");
const QString update = QStringLiteral("user/update_password");
const QString setPassword = QStringLiteral("user/set_password");
const QString setNick = QStringLiteral("user/set_nick");
const QString idCard = QStringLiteral("11010119900307001X");
const QString password = QStringLiteral("246810");
const QString mismatch = QStringLiteral("两次密码输入不一致，请重新输入");

QVariantMap codeSent()
{
    return {{QStringLiteral("success"), true}, {QStringLiteral("bizCode"), QStringLiteral("1003")}};
}

/// A reset as it was handed on to the two password screens.
QVariantMap collected()
{
    return {{QStringLiteral("bizCode"), QStringLiteral("1003")},
            {QStringLiteral("userInput"), QStringLiteral("654321")},
            {QStringLiteral("idCard"), idCard}};
}
} // namespace

/// My account in the window's content, the screens under test on top of it.
class PersonalTest : public PlatformTest {
protected:
    PersonalTest()
    {
        settings.values.insert(SettingsKeys::user,
                               QVariantMap{{QStringLiteral("api_token"), QStringLiteral("t0ken")},
                                           {QStringLiteral("cell"), QStringLiteral("13812345678")},
                                           {QStringLiteral("name"), QStringLiteral("张三丰")},
                                           {QStringLiteral("nick"), QStringLiteral("旧名")}});
        window.setRoot(std::make_unique<KRBaseController>());
        stack = window.present(std::make_unique<KRBaseController>());
        observed = {};
        notifications.observe(&observer, NotificationNames::refreshAccount,
                              [this](const QVariant &) { observed.append(state()); });
    }

    template <typename Screen> Screen *push() { return push(std::make_unique<Screen>()); }
    template <typename Screen> Screen *push(std::unique_ptr<Screen> screen)
    {
        Screen *const pushed = screen.get();
        stack->push(std::move(screen));
        return pushed;
    }
    template <typename Screen> Screen *top() { return qobject_cast<Screen *>(stack->top()); }

    TZVerifyPhoneController *toPhone()
    {
        push<TZPersonalController>()->tradePwdRowClick();
        http.answer(canUpdate, succeeded());
        return top<TZVerifyPhoneController>();
    }
    TZVerifyIDController *toID()
    {
        TZVerifyPhoneController *const phone = toPhone();
        http.answer(sendCode, codeSent());
        phone->textFiledEditChanged(QStringLiteral("654321"));
        phone->clickNextStepBtn();
        http.answer(verifyCode, succeeded());
        return top<TZVerifyIDController>();
    }
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
    /// How deep the stack is, and the banner that is up.
    QString state() { return QString::number(stack->depth()) + banners().join(u' '); }

    QObject observer;
    QStringList observed;
    KRWindow window;
    QPointer<KRNavigationController> stack;
};

TEST_F(PersonalTest, AForgottenPasswordIsResetFromThePersonalPage)
{
    auto *const personal = push<TZPersonalController>();
    EXPECT_EQ(personal->cell(), QStringLiteral("138****5678"));
    EXPECT_EQ(personal->name(), QStringLiteral("张**"));
    personal->tradePwdRowClick();
    personal->tradePwdRowClick();
    EXPECT_EQ(http.countOf(canUpdate), 1);
    EXPECT_EQ(http.pending(canUpdate).request.method, "GET");
    http.answer(canUpdate, succeeded());

    auto *const phone = top<TZVerifyPhoneController>();
    ASSERT_TRUE(phone);
    EXPECT_EQ(http.pending(sendCode).fields(), QVariantMap());
    EXPECT_EQ(phone->smsCell()->leftTime(), 0) << "nothing was sent yet";
    http.answer(sendCode, codeSent());
    EXPECT_EQ(phone->smsCell()->leftTime(), 60);
    EXPECT_EQ(phone->headerText(), QStringLiteral("已发送短信验证码至138****5678，请在输入框内填写验证码"));
    phone->textFiledEditChanged(QStringLiteral("654321"));
    phone->clickNextStepBtn();
    EXPECT_EQ(http.pending(verifyCode).fields(),
              (QVariantMap{{QStringLiteral("bizCode"), QStringLiteral("1003")},
                           {QStringLiteral("userInput"), QStringLiteral("654321")}}));
    http.answer(verifyCode, succeeded());

    auto *const check = top<TZVerifyIDController>();
    ASSERT_TRUE(check);
    EXPECT_EQ(check->title(), QStringLiteral("身份验证"));
    check->setIdCard(idCard);
    check->nextBtnClick();
    EXPECT_EQ(http.pending(verifyID).fields(), (QVariantMap{{QStringLiteral("idCard"), idCard}}));
    EXPECT_TRUE(observed.isEmpty());
    http.answer(verifyID, succeeded());

    auto *const set = top<TZSetPasswordController>();
    ASSERT_TRUE(set);
    EXPECT_EQ(set->title(), QStringLiteral("重置密码"));
    EXPECT_TRUE(set->isResetPassword);
    EXPECT_EQ(set->requestData, collected());
    EXPECT_EQ(observed.size(), 1) << "my account is told as the screen is loaded";
    set->setInput(password);

    auto *const ensure = top<TZEnsurePasswordController>();
    ASSERT_TRUE(ensure);
    EXPECT_EQ(ensure->title(), QStringLiteral("确认重置密码"));
    EXPECT_EQ(ensure->prePassword, password);
    ensure->setInput(password);
    QVariantMap sent = collected();
    sent.insert(QStringLiteral("password"), password);
    EXPECT_EQ(http.pending(update).fields(), sent);
    observed.clear();
    http.answer(update, succeeded());
    EXPECT_EQ(observed, QStringList(QStringLiteral("6")))
        << "told while the stack still stands, no banner yet";
    EXPECT_EQ(stack->depth(), 1);
    runLoop.advance(500ms);
    EXPECT_EQ(banners(), QStringList(QStringLiteral("设置成功")));
}

TEST_F(PersonalTest, TheFirstPasswordIsSetInAStackOfItsOwn)
{
    auto first = std::make_unique<TZSetPasswordController>();
    first->isFirstShow = true;
    TZSetPasswordController *const set = first.get();
    stack = window.present(std::move(first));
    EXPECT_EQ(set->title(), QStringLiteral("输入交易密码"));
    EXPECT_EQ(set->leftItemImage(), QStringLiteral("common_close_gray"));
    set->setInput(QStringLiteral("2468"));
    EXPECT_EQ(stack->depth(), 1);
    set->setInput(QStringLiteral("24 68 10 9"));
    auto *const ensure = top<TZEnsurePasswordController>();
    ASSERT_TRUE(ensure);
    EXPECT_EQ(ensure->title(), QStringLiteral("设置交易密码"));
    observed.clear();
    ensure->setInput(password);
    EXPECT_EQ(http.pending(setPassword).fields(), (QVariantMap{{QStringLiteral("password"), password}}));
    http.answer(setPassword, succeeded());
    EXPECT_EQ(window.presented()->count(), 1);
    EXPECT_TRUE(observed.isEmpty());
    runLoop.advance(500ms);
    EXPECT_EQ(banners(), QStringList(QStringLiteral("设置成功")));
}

TEST_F(PersonalTest, TheDotsMirrorTheDigits)
{
    auto *const set = push<TZSetPasswordController>();
    const auto dots = [set] {
        return QList<bool>{set->button1(), set->button2(), set->button3(),
                           set->button4(), set->button5(), set->button6()};
    };
    EXPECT_EQ(dots(), QList<bool>(6, false));
    set->setInput(QStringLiteral(" 1 "));
    EXPECT_EQ(dots(), (QList<bool>{true, false, false, false, false, false}));
    set->setInput(QStringLiteral("１2三4"));
    EXPECT_EQ(set->input(), QStringLiteral("24")) << "digits only";
    set->setInput(QStringLiteral("12 34 56 7"));
    EXPECT_EQ(dots(), QList<bool>(6, true));
    top<TZEnsurePasswordController>()->backButtonClicked();
    EXPECT_EQ(dots(), QList<bool>(6, false)) << "who comes back starts again";
}

TEST_F(PersonalTest, AnotherSecondEntryIsRefusedAndBegunAnew)
{
    for (const bool isResetPassword : {true, false}) {
        TZEnsurePasswordController *const ensure = toEnsure(isResetPassword);
        ensure->setInput(QStringLiteral("246811"));
        EXPECT_EQ(banners(), QStringList(mismatch));
        EXPECT_EQ(top<TZEnsurePasswordController>(), ensure);
        EXPECT_EQ(ensure->input(), QString());
        EXPECT_EQ(http.count(), 0);
    }
}

TEST_F(PersonalTest, ARefusedOrLostPasswordStaysAndCanBeSentAgain)
{
    for (const auto &[isResetPassword, path] : {std::pair(true, update), std::pair(false, setPassword)}) {
        TZEnsurePasswordController *const ensure = toEnsure(isResetPassword);
        QList<bool> told;
        QObject::connect(ensure, &KRBaseController::barChanged, &observer,
                         [&] { told.append(ensure->canBeLeft()); });
        ensure->setInput(password);
        ensure->setInput(password + QStringLiteral("1"));
        EXPECT_EQ(http.countOf(path), 1) << "one at a time";
        ensure->backButtonClicked();
        EXPECT_EQ(top<TZEnsurePasswordController>(), ensure) << "its outcome must be seen";
        http.answer(path, refused(QStringLiteral("请先完成身份验证")));
        EXPECT_EQ(told, (QList<bool>{false, true}));
        ensure->disconnect(&observer);
        EXPECT_EQ(banners(), QStringList(QStringLiteral("请先完成身份验证")));
        EXPECT_FALSE(overlays.isWaiting());
        EXPECT_EQ(top<TZEnsurePasswordController>(), ensure);
        EXPECT_EQ(ensure->input(), password);
        ensure->setInput(QStringLiteral("24681"));
        ensure->setInput(password);
        http.fail(path, HttpFailure::TimedOut);
        EXPECT_EQ(banners(), QStringList(QStringLiteral("加载失败")));
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
    EXPECT_EQ(alert()->titleText(), QStringLiteral("退出操作"));
    EXPECT_EQ(alert()->ensureText(), QStringLiteral("是否放弃本次操作"));
    EXPECT_EQ(alert()->leftTitle(), QStringLiteral("取消"));
    EXPECT_EQ(alert()->rightTitle(), QStringLiteral("退出"));
    alert()->leftBtnClick();
    EXPECT_EQ(stack->top(), set);
    set->leftItemClick();
    alert()->rightBtnClick();
    EXPECT_EQ(stack->depth(), 1);

    auto first = std::make_unique<TZSetPasswordController>();
    first->isFirstShow = true;
    window.present(std::move(first));
    qobject_cast<TZSetPasswordController *>(window.topStack()->top())->leftItemClick();
    alert()->rightBtnClick();
    EXPECT_EQ(window.topStack(), stack);
    EXPECT_EQ(http.count(), 0);
}

TEST_F(PersonalTest, NoStepOfTheResetGoesOnAfterARefusalOrABrokenAnswer)
{
    auto *const personal = push<TZPersonalController>();
    const auto breakDown = [this](const QString &path, const std::function<void()> &send) {
        KRBaseController *const before = stack->top();
        send();
        http.answer(path, refused(QStringLiteral("请先设置交易密码")));
        EXPECT_EQ(banners(), QStringList(QStringLiteral("请先设置交易密码"))) << path.toStdString();
        send();
        http.fail(path, HttpFailure::Connection);
        EXPECT_EQ(banners(), QStringList(QStringLiteral("加载失败"))) << path.toStdString();
        send();
        http.answerRaw(http.pending(path), HttpResponse{200, "text/html", "<html>"});
        EXPECT_EQ(banners(), QStringList(QStringLiteral("加载失败"))) << path.toStdString();
        EXPECT_EQ(stack->top(), before);
        EXPECT_FALSE(overlays.isWaiting());
        send();
    };
    breakDown(canUpdate, [personal] { personal->tradePwdRowClick(); });
    http.answer(canUpdate, succeeded(QStringLiteral("1")));

    auto *const phone = top<TZVerifyPhoneController>();
    http.answer(sendCode, refused(QStringLiteral("短信发送过于频繁")));
    EXPECT_TRUE(phone->smsCell()->enabled());
    EXPECT_EQ(phone->smsCell()->title(), QStringLiteral("获取验证码"));
    breakDown(sendCode, [phone] { phone->clickTimeBtn(); });
    http.answer(sendCode, succeeded());
    phone->textFiledEditChanged(QStringLiteral("654321"));
    phone->clickNextStepBtn();
    EXPECT_EQ(banners(), QStringList(QStringLiteral("交易码异常"))) << "that answer carried none";
    runLoop.advance(60s);
    phone->clickTimeBtn();
    http.answer(sendCode, codeSent());
    breakDown(verifyCode, [phone] { phone->clickNextStepBtn(); });
    http.answer(verifyCode, succeeded());

    auto *const check = top<TZVerifyIDController>();
    check->setIdCard(idCard);
    breakDown(verifyID, [check] { check->nextBtnClick(); });
    check->backButtonClicked();
    http.answer(verifyID, succeeded());
    EXPECT_EQ(stack->top(), phone) << "who went back is not led on by a late answer";
}

TEST_F(PersonalTest, TheIdentityCheckNamesTheFirstProblem)
{
    TZVerifyIDController *const check = toID();
    const struct {
        QString number;
        QString problem;
    } cases[] = {
        {"", "请输入身份证号"},
        {"  ", "请输入身份证号"},
        {"1101011990030700", "身份证格式不正确，请重新输入"},
        {"11010119900307001", "身份证格式不正确，请重新输入"},
        {"11010119900307001Y", "身份证格式不正确，请重新输入"},
        {"1101011990030700XX", "身份证格式不正确，请重新输入"},
        {"１１０１０１１９９００３０７０", "身份证格式不正确，请重新输入"},
        {QString(10'000, u'1'), "身份证格式不正确，请重新输入"},
    };
    for (const auto &[number, problem] : cases) {
        check->setIdCard(number);
        check->nextBtnClick();
        EXPECT_EQ(banners(), QStringList(problem)) << number.toStdString();
    }
    EXPECT_EQ(http.countOf(verifyID), 0);
}

TEST_F(PersonalTest, TheNicknameIsChangedFromThePersonalPage)
{
    auto *const personal = push<TZPersonalController>();
    int changes = 0;
    QObject::connect(personal, &TZPersonalController::userChanged, &observer, [&changes] { ++changes; });
    personal->nickRowClick();
    auto *const screen = top<TZModifyNicknameController>();
    ASSERT_TRUE(screen);
    EXPECT_EQ(screen->title(), QStringLiteral("修改昵称"));
    EXPECT_EQ(screen->leftItemImage(), QStringLiteral("common_back_gray"));
    screen->textFiledEditChanged(QStringLiteral("一二三四五六七八九十百"));
    EXPECT_EQ(screen->nick(), QStringLiteral("一二三四五六七八九十"));
    screen->saveBtnClick();
    screen->saveBtnClick();
    EXPECT_EQ(http.countOf(setNick), 1);
    http.answer(setNick, succeeded(QVariantMap{{QStringLiteral("nick"), QStringLiteral("别的")}}));
    EXPECT_EQ(TZUserModel::stored().nick, QStringLiteral("一二三四五六七八九十")) << "what was sent";
    EXPECT_EQ(stack->top(), personal);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(personal->nick(), QStringLiteral("一二三四五六七八九十"));
    for (const char *nothing : {"", "  ", "(null)"}) {
        const QString text = QLatin1String(nothing);
        settings.values.insert(SettingsKeys::user,
                               QVariantMap{{QStringLiteral("cell"), QStringLiteral("13812345678")},
                                           {QStringLiteral("nick"), text},
                                           {QStringLiteral("name"), text}});
        EXPECT_EQ(personal->nick(), QStringLiteral("未设置")) << nothing;
        EXPECT_EQ(personal->name(), QStringLiteral("未实名")) << nothing;
        EXPECT_EQ(personal->displayName(), QStringLiteral("138****5678")) << nothing;
    }
    runLoop.advance(500ms);
    EXPECT_EQ(banners(), QStringList(QStringLiteral("设置成功")));
}

TEST_F(PersonalTest, AMissingNicknameIsSetInAStackOfItsOwn)
{
    const auto present = [this] {
        auto nickname = std::make_unique<TZModifyNicknameController>();
        nickname->isSetNickname = true;
        nickname->isFirstShow = true;
        TZModifyNicknameController *const screen = nickname.get();
        window.present(std::move(nickname));
        return screen;
    };
    TZModifyNicknameController *screen = present();
    EXPECT_EQ(screen->title(), QStringLiteral("设置昵称"));
    EXPECT_EQ(screen->leftItemImage(), QStringLiteral("common_close_gray"));
    screen->backButtonClicked();
    EXPECT_EQ(window.topStack(), stack);

    screen = present();
    screen->saveBtnClick();
    EXPECT_EQ(banners(), QStringList(QStringLiteral("请输入昵称")));
    screen->textFiledEditChanged(QStringLiteral("小雨"));
    screen->saveBtnClick();
    http.answer(setNick, refused(QStringLiteral("昵称已被使用")));
    EXPECT_EQ(window.topStack()->top(), screen);
    EXPECT_EQ(screen->nick(), QStringLiteral("小雨"));
    screen->saveBtnClick();
    http.answer(setNick, succeeded());
    EXPECT_EQ(window.topStack(), stack);
}

TEST_F(PersonalTest, WhatIsBeingComposedIsCutOnlyWhenItIsDone)
{
    auto *const screen = push<TZModifyNicknameController>();
    const QString eleven = QStringLiteral("一二三四五六七八九十百");
    screen->textFiledEditChanged(eleven, true);
    EXPECT_EQ(screen->nick(), eleven);
    screen->textFiledEditChanged(eleven, false);
    EXPECT_EQ(screen->nick().size(), 10);
    screen->textFiledEditChanged(QString(21, u'股'), true);
    screen->saveBtnClick();
    EXPECT_EQ(banners(), QStringList(QStringLiteral("昵称最多十个汉字")));
    EXPECT_EQ(http.count(), 0);
}
