#include "tour/Tour.h"

#include <cstdio>

using namespace std::chrono_literals;

namespace {
const QString cell = QStringLiteral("13800138000");
const QString newcomer = QStringLiteral("13912345678");
const QString tradePassword = QStringLiteral("123456");
const QString identityNumber = QStringLiteral("110101199003070011");
const QString placed = QStringLiteral("委托挂单成功");
} // namespace

Tour::Tour(Hand &usedHand, SandboxProcess &usedSandbox, const QDir &pictureFolder)
    : hand(usedHand), sandbox(usedSandbox), pictures(pictureFolder)
{
}

QList<Tour::Step> Tour::steps()
{
    return {
        {QStringLiteral("guide"), [this] { return hand.waitFor(QStringLiteral("跳过")); }},
        {QStringLiteral("home, signed out"), [this] { return passGuide(); }},
        {QStringLiteral("sign-in asked for"), [this] { return askForSignIn(); }},
        {QStringLiteral("code sent"), [this] { return sendCode(); }},
        {QStringLiteral("trading page"), [this] { return signInWithCode(); }},
        {QStringLiteral("order entry"), [this] { return openOrderEntry(); }},
        {QStringLiteral("stock found"), [this] { return findStock(); }},
        {QStringLiteral("price tapped"), [this] { return tapPrice(); }},
        {QStringLiteral("buy placed"), [this] { return submitBuy(); }},
        {QStringLiteral("order in the books"), [this] { return buyStandsInTheBooks(); }},
        {QStringLiteral("sell placed"), [this] { return sellHolding(); }},
        {QStringLiteral("orders cancelled"), [this] { return cancelOrders(); }},
        {QStringLiteral("stock"), [this] { return readStock(); }},
        {QStringLiteral("daily candles"), [this] { return readCandles(); }},
        {QStringLiteral("message pushed"), [this] { return receiveMessage(); }},
        {QStringLiteral("entrusts and deals"), [this] { return readEntrustsAndDeals(); }},
        {QStringLiteral("detail"), [this] { return readDetail(); }},
        {QStringLiteral("home, signed in"), [this] { return goHome(); }},
        {QStringLiteral("my account"), [this] { return openAccountOfMenu(); }},
        {QStringLiteral("nickname changed"), [this] { return changeNickname(); }},
        {QStringLiteral("trade password reset"), [this] { return resetTradePassword(); }},
        {QStringLiteral("signed out"), [this] { return logOut(); }},
        {QStringLiteral("newcomer"), [this] { return registerNewcomer(); }},
        {QStringLiteral("first nickname"), [this] { return chooseFirstNickname(); }},
        {QStringLiteral("first trade password"), [this] { return setFirstPassword(); }},
    };
}

bool Tour::walk()
{
    const QList<Step> all = steps();
    for (int number = 1; number <= all.size(); ++number) {
        const Step &step = all.at(number - 1);
        const bool acted = step.act();
        Hand::wait([] { return false; }, 300ms);
        const bool done = acted && !hand.sees(QStringLiteral("重新加载"));
        const QString file = QStringLiteral("%1-%2.png")
                                 .arg(number, 2, 10, QLatin1Char('0'))
                                 .arg(QString(step.name).replace(u' ', u'-').remove(u','));
        hand.picture().save(pictures.filePath(file));
        std::printf("  %2d/%d  %-20s %s\n", number, static_cast<int>(all.size()), qPrintable(step.name),
                    done ? "ok" : "FAILED");
        std::fflush(stdout);
        if (!done) {
            std::printf("what was on the window:\n  %s\n",
                        qPrintable(hand.names().join(QStringLiteral("\n  "))));
            return false;
        }
    }
    return true;
}

bool Tour::passGuide()
{
    return hand.press(QStringLiteral("跳过")) && hand.waitForPart(QStringLiteral("位用户在操盘"));
}

bool Tour::askForSignIn()
{
    return hand.pressPart(QStringLiteral("炒股 佣金")) && hand.waitFor(QStringLiteral("请输入手机号"));
}

bool Tour::sendCode()
{
    return askForCode(cell) && hand.waitForPart(QStringLiteral("138****8000"));
}

bool Tour::signInWithCode()
{
    return hand.type(QStringLiteral("请输入短信验证码"), sandbox.codeFor(cell)) &&
           hand.press(QStringLiteral("登录")) && hand.waitFor(QStringLiteral("Zorvane-实盘炒股")) &&
           hand.waitForPart(QStringLiteral("当前持仓(4)"));
}

bool Tour::openOrderEntry()
{
    ordersBefore = ordersInTheBooks();
    availableBefore = user().value(QStringLiteral("availableMoney")).toString();
    stock = heldStock();
    return hand.press(QStringLiteral("买入")) && hand.waitFor(QStringLiteral("请输入股票代码或拼音"));
}

bool Tour::findStock()
{
    return hand.press(QStringLiteral("请输入股票代码或拼音")) && hand.waitFor(QStringLiteral("选择股票")) &&
           hand.type(QStringLiteral("请输入股票代码或拼音"), sandbox.initialsOf(stock).toLower()) &&
           hand.waitForPart(stock);
}

bool Tour::tapPrice()
{
    const QString price = QStringLiteral("卖1 ");
    hand.key(Qt::Key_Return);
    return hand.waitForPart(price) && hand.seesPart(stock) && hand.pressPart(price) &&
           hand.waitForPart(QStringLiteral("当前可买入"));
}

bool Tour::submitBuy()
{
    return hand.type(QStringLiteral("请输入买入数量"), QStringLiteral("100")) &&
           hand.press(QStringLiteral("买入")) && enterTradePassword() && hand.waitFor(placed);
}

bool Tour::buyStandsInTheBooks()
{
    // Cash pays for it, or is frozen for it.
    return ordersInTheBooks() == ordersBefore + 1 &&
           user().value(QStringLiteral("availableMoney")) != availableBefore &&
           hand.press(QStringLiteral("实盘炒股")) && hand.waitForPart(QStringLiteral("当前持仓"));
}

bool Tour::sellHolding()
{
    const QString price = QStringLiteral("卖5 ");
    return hand.press(QStringLiteral("卖出")) && hand.waitFor(QStringLiteral("选择卖出股票")) &&
           hand.pressPart(stock) && hand.waitForPart(price) && hand.pressPart(price) &&
           hand.type(QStringLiteral("请输入卖出数量"), QStringLiteral("100")) &&
           hand.press(QStringLiteral("卖出")) && hand.waitFor(placed) &&
           ordersInTheBooks() == ordersBefore + 2 && hand.press(QStringLiteral("实盘炒股")) && hand.back();
}

bool Tour::cancelOrders()
{
    // The row's own button comes with the row, which says that the order is open; the page is called the
    // same. The price may have moved away from the buy, so that it is open too.
    const auto open = [this] { return hand.names().filter(QStringLiteral("委托中")).size(); };
    if (!hand.press(QStringLiteral("撤单")) || !hand.waitForPart(QStringLiteral("委托中")))
        return false;
    while (const auto before = open()) {
        if (!hand.press(QStringLiteral("撤单")) || !Hand::wait([&] { return open() < before; }) ||
            !hand.waitUntilGone(QStringLiteral("加载中...")))
            return false;
    }
    return hand.waitFor(QStringLiteral("暂无可撤委托")) && hand.back();
}

bool Tour::readStock()
{
    return hand.pressPart(stock) && hand.waitFor(QStringLiteral("分时")) &&
           hand.waitForPart(QStringLiteral("卖1 "));
}

bool Tour::readCandles()
{
    return hand.press(QStringLiteral("日K")) && hand.waitForPart(QStringLiteral("日K线"));
}

bool Tour::receiveMessage()
{
    const QString title = QStringLiteral("今晚维护");
    sandbox.post(QStringLiteral("message"), {{QStringLiteral("user"), QStringLiteral("1")},
                                             {QStringLiteral("source"), QStringLiteral("100")},
                                             {QStringLiteral("title"), title},
                                             {QStringLiteral("content"), QStringLiteral("二十二点起")}});
    return hand.waitFor(QStringLiteral("消息详情")) && hand.waitFor(title);
}

bool Tour::readEntrustsAndDeals()
{
    return hand.press(QStringLiteral("关闭")) && hand.back() && hand.press(QStringLiteral("查看")) &&
           hand.waitForPart(QStringLiteral("已撤单")) && hand.press(QStringLiteral("当日成交")) &&
           hand.waitForPart(stock);
}

bool Tour::readDetail()
{
    return hand.press(QStringLiteral("当日委托")) && hand.pressPart(QStringLiteral("已撤单")) &&
           hand.waitFor(QStringLiteral("委托详情")) && hand.waitForPart(QStringLiteral("当前状态"));
}

bool Tour::goHome()
{
    return hand.press(QStringLiteral("关闭")) && hand.back() && hand.back() &&
           hand.waitForPart(QStringLiteral("总资产"));
}

bool Tour::changeNickname()
{
    return hand.pressPart(QStringLiteral("体验用户")) && hand.pressPart(QStringLiteral("昵称")) &&
           hand.type(QStringLiteral("请输入新昵称"), QStringLiteral("Laoshiren11")) &&
           hand.press(QStringLiteral("保存设置")) && hand.waitFor(QStringLiteral("昵称 Laoshiren1")) &&
           hand.waitFor(QStringLiteral("设置成功"));
}

bool Tour::resetTradePassword()
{
    const QString field = QStringLiteral("交易密码");
    const QString lastCode = sandbox.codeFor(cell);
    return hand.pressPart(QStringLiteral("重置")) && hand.waitForPart(QStringLiteral("已发送短信验证码")) &&
           Hand::wait([&] { return sandbox.codeFor(cell) != lastCode; }) &&
           hand.type(QStringLiteral("请输入短信验证码"), sandbox.codeFor(cell)) &&
           hand.press(QStringLiteral("下一步")) &&
           hand.type(QStringLiteral("请输入实名认证时的证件号码"), QStringLiteral("110101199003070029")) &&
           hand.press(QStringLiteral("下一步")) && hand.waitForPart(QStringLiteral("不一致")) &&
           hand.type(QStringLiteral("请输入实名认证时的证件号码"), identityNumber) &&
           hand.press(QStringLiteral("下一步")) && hand.waitFor(QStringLiteral("重置密码")) &&
           hand.type(field, QStringLiteral("654321")) && hand.waitFor(QStringLiteral("确认重置密码")) &&
           hand.type(field, QStringLiteral("654322")) && hand.waitForPart(QStringLiteral("不一致")) &&
           hand.type(field, QStringLiteral("654321")) && hand.waitFor(QStringLiteral("设置成功")) &&
           hand.waitFor(QStringLiteral("我的账户"));
}

bool Tour::logOut()
{
    return hand.press(QStringLiteral("更多")) && hand.press(QStringLiteral("退出登录")) &&
           hand.press(QStringLiteral("确定")) && hand.waitForPart(QStringLiteral("位用户在操盘"));
}

bool Tour::registerNewcomer()
{
    return hand.pressPart(QStringLiteral("炒股 佣金")) && askForCode(newcomer) &&
           hand.type(QStringLiteral("请输入短信验证码"), sandbox.codeFor(newcomer)) &&
           hand.press(QStringLiteral("立即注册")) && hand.waitFor(QStringLiteral("请输入昵称")) &&
           hand.press(QStringLiteral("关闭")) && openAccountOfMenu();
}

bool Tour::chooseFirstNickname()
{
    return hand.press(QStringLiteral(" 充值")) && hand.waitFor(QStringLiteral("设置昵称")) &&
           hand.type(QStringLiteral("请输入新昵称"), QStringLiteral("Xiaoyu")) &&
           hand.press(QStringLiteral("保存设置")) && hand.waitForPart(QStringLiteral("Xiaoyu "));
}

bool Tour::setFirstPassword()
{
    const QString field = QStringLiteral("交易密码");
    return hand.press(QStringLiteral(" 充值")) && hand.waitFor(QStringLiteral("输入交易密码")) &&
           hand.press(QStringLiteral("关闭")) && hand.press(QStringLiteral("取消")) &&
           hand.type(field, QStringLiteral("246810")) && hand.waitFor(QStringLiteral("设置交易密码")) &&
           hand.type(field, QStringLiteral("246810")) && hand.waitFor(QStringLiteral("设置成功")) &&
           hand.press(QStringLiteral(" 充值")) && hand.waitFor(QStringLiteral("开通资金托管账户"));
}

bool Tour::askForCode(const QString &number)
{
    return hand.type(QStringLiteral("请输入手机号"), number) && hand.press(QStringLiteral("下一步")) &&
           hand.waitFor(QStringLiteral("请输入短信验证码")) &&
           Hand::wait([&] { return !sandbox.codeFor(number).isEmpty(); });
}

bool Tour::openAccountOfMenu()
{
    return hand.press(QStringLiteral("菜单")) && hand.pressPart(QStringLiteral("我的账户")) &&
           hand.waitForPart(QStringLiteral("可用余额"));
}

bool Tour::enterTradePassword()
{
    if (!hand.waitFor(QStringLiteral("交易密码")))
        return false;
    hand.keys(tradePassword);
    return true;
}

QVariantMap Tour::user() const
{
    return sandbox.state().value(QStringLiteral("users")).toList().value(0).toMap();
}

QString Tour::heldStock() const
{
    return user()
        .value(QStringLiteral("holdings"))
        .toList()
        .value(0)
        .toMap()
        .value(QStringLiteral("stockName"))
        .toString();
}

int Tour::ordersInTheBooks() const
{
    return static_cast<int>(user().value(QStringLiteral("orders")).toList().size());
}
