#include "trading/screens/OrderDialogs.h"

#include "core/platform/Platform.h"
#include "core/platform/RunLoop.h"
#include "core/platform/Timer.h"
#include "core/shell/KRWindow.h"
#include "core/shell/TZInfoAlertView.h"
#include "core/util/Service.h"
#include "core/util/Text.h"
#include "trading/api/EntrustStatus.h"
#include "trading/screens/OrderInquiry.h"
#include "trading/screens/UnknownOrders.h"

#include <algorithm>
#include <memory>

using namespace std::chrono_literals;

namespace {
const QString placedTitle = QStringLiteral("委托挂单成功");
const QString notPlacedTitle = QStringLiteral("委托未成功");
const QString unknownTitle = QStringLiteral("委托结果未知");
const QString leaveTitle = QStringLiteral("实盘炒股");
const QString searchTitle = QStringLiteral("查询委托");
const QString againTitle = QStringLiteral("再次提交");
const QString understoodTitle = QStringLiteral("知道了");

/// Longer than a request may take, and than the books may need for what was sent before it.
constexpr std::chrono::milliseconds late = 30s;

QString below(const OrderIntent &order, const QString &news)
{
    return order.text() + QStringLiteral("\n\n") + news;
}

bool isRefused(const FoundOrder &found)
{
    constexpr int refused = 9;
    return integerValue(found.entrust.status) == refused;
}

/// "委托编号 10004", "状态：委托中", "提交时间 10:00:00" under each other, without what the service left out.
QString described(const FoundOrder &found)
{
    const TZEntrustsTodayModel &entrust = found.entrust;
    QStringList parts;
    if (!Service::whetherAnEmptyString(entrust.entrustNo))
        parts.append(QStringLiteral("委托编号 %1").arg(entrust.entrustNo));
    if (!Service::whetherAnEmptyString(entrust.status))
        parts.append(QStringLiteral("状态：%1").arg(EntrustStatus::of(entrust.status).text));
    if (OrderIntent::serviceTime(entrust.createdAt) > 0)
        parts.append(QStringLiteral("提交时间 %1").arg(Service::formatTimeStamp(entrust.createdAt)));
    QString text = parts.join(u'\n');
    if (!found.certain)
        text.prepend(QStringLiteral("可能是这笔："));
    if (!Service::whetherAnEmptyString(entrust.errorMsg))
        text += u'\n' + entrust.errorMsg;
    return text;
}

/// Every kind of order once, with what was found of it and how many are still missing.
QString described(const QList<FoundOrder> &found)
{
    QList<OrderIntent> kinds;
    for (const FoundOrder &each : found) {
        const auto isKind = [&each](const OrderIntent &kind) { return kind.isSameOrder(each.order); };
        if (std::none_of(kinds.begin(), kinds.end(), isKind))
            kinds.append(each.order);
    }
    QStringList texts;
    for (const OrderIntent &kind : std::as_const(kinds)) {
        QStringList lines;
        for (const FoundOrder &each : found) {
            if (each.order.isSameOrder(kind))
                lines.append(described(each));
        }
        if (const auto missing = UnknownOrders::like(kind).size(); missing > 0)
            lines.append(QStringLiteral("另有 %1 次提交没有找到，可能稍后才会出现。").arg(missing));
        texts.append(below(kind, lines.join(u'\n')));
    }
    return texts.join(QStringLiteral("\n\n"));
}

QString foundTitle(const QList<FoundOrder> &found)
{
    return found.size() == 1 ? QStringLiteral("已找到这笔委托")
                             : QStringLiteral("已找到 %1 笔委托").arg(found.size());
}

/// Whether the screen is still there.
bool areOpen(const OrderWays &ways)
{
    return ways.leave && ways.goOn;
}

void inform(KRWindow &window, const QString &title, const QString &text)
{
    window.show(std::make_unique<TZInfoAlertView>(TZInfoAlertViewModel{title, text, {}, understoodTitle},
                                                  OwnedAction(), OwnedAction()));
}

void tellPlaced(KRWindow &window, const OrderIntent &order, const OrderWays &ways)
{
    if (!areOpen(ways))
        return inform(window, placedTitle, order.text());
    ways.whenPlaced();
    window.show(std::make_unique<TZInfoAlertView>(
        TZInfoAlertViewModel{placedTitle, {}, leaveTitle, OrderTexts::of(order.side).continueTitle},
        ways.leave, ways.goOn));
}

void tellNotPlaced(KRWindow &window, const SentOrder &sent)
{
    const QString message = textForm(sent.answer.value(QStringLiteral("message")));
    inform(
        window, notPlacedTitle,
        below(sent.order, Service::whetherAnEmptyString(message) ? QStringLiteral("请重新提交") : message));
}

class SearchAlert : public TZInfoAlertView {
public:
    SearchAlert(TZInfoAlertViewModel firstModel, const OrderIntent &unknownOrder, OrderWays orderWays,
                OwnedAction sendAgain)
        : TZInfoAlertView(std::move(firstModel), {}, {}), order(unknownOrder), ways(std::move(orderWays)),
          again(std::move(sendAgain))
    {
    }

    void start()
    {
        auto *const inquiry = new OrderInquiry(UnknownOrders::like(order), again ? 1 : 2, this);
        connect(inquiry, &OrderInquiry::found, this, &SearchAlert::tellFound);
        connect(inquiry, &OrderInquiry::notFound, this, &SearchAlert::tellNotFound);
        connect(inquiry, &OrderInquiry::unreadable, this, &SearchAlert::tellUnreadable);
        // What nobody sees any more must neither settle nor send anything.
        connect(this, &KRDialog::removed, inquiry, &QObject::deleteLater);
        inquiry->start();
    }

private:
    void tellFound(const QList<FoundOrder> &found)
    {
        const QString title = foundTitle(found);
        const QString text = described(found);
        const bool stands = !std::all_of(found.begin(), found.end(), isRefused);
        if (stands)
            ways.whenPlaced();
        if (stands && areOpen(ways))
            say({title, text, leaveTitle, OrderTexts::of(order.side).continueTitle}, ways.leave, ways.goOn);
        else
            say({title, text, {}, understoodTitle}, {}, {});
    }

    void tellNotFound()
    {
        if (again) {
            removeFromWindow();
            again();
            return;
        }
        say({QStringLiteral("未找到这笔委托"),
             below(order, QStringLiteral("今日委托中没有这笔委托，它可能没有提交成功，也可能稍后才会出现。"
                                         "再次提交前会请您确认。")),
             understoodTitle, searchTitle},
            {}, search());
    }

    void tellUnreadable()
    {
        const QString text = below(order, QStringLiteral("没有读到今日委托，不能确定这笔委托是否已经提交。"));
        if (again)
            say({unknownTitle, text, againTitle, searchTitle}, again, search());
        else
            say({unknownTitle, text, understoodTitle, searchTitle}, {}, search());
    }

    OwnedAction search() const
    {
        return {window(),
                [host = window(), order = order, ways = ways] { OrderDialogs::tell(*host, order, ways); }};
    }

    const OrderIntent order;
    const OrderWays ways;
    /// Set when the user waits to send the order once more.
    const OwnedAction again;
};

class QuietLook : public QObject {
public:
    static inline const QString name = QStringLiteral("QuietLook");

    explicit QuietLook(KRWindow &hostWindow) : QObject(&hostWindow), window(hostWindow)
    {
        setObjectName(name);
        connect(window.dialogs(), &ObjectListModel::countChanged, this, &QuietLook::putOff);
    }

    void startIn(std::chrono::milliseconds pause)
    {
        timer.startOnce(pause, [this] { look(); });
    }

private:
    void look()
    {
        const QList<OrderIntent> sought = UnknownOrders::all();
        if (sought.isEmpty())
            return deleteLater();
        const qint64 age = Platform::current().runLoop.now() - sought.constLast().sentAt;
        const bool mayBeOnItsWay = age >= 0 && age < late.count();
        if (window.dialogs()->count() > 0 || mayBeOnItsWay)
            return startIn(late);
        inquiry = std::make_unique<OrderInquiry>(sought, 1, nullptr);
        connect(inquiry.get(), &OrderInquiry::found, this, &QuietLook::tellFound);
        connect(inquiry.get(), &OrderInquiry::notFound, this, &QObject::deleteLater);
        connect(inquiry.get(), &OrderInquiry::unreadable, this, &QObject::deleteLater);
        inquiry->start();
    }

    /// A dialog has come up over the reading: what it would find is left for later.
    void putOff()
    {
        if (!inquiry || window.dialogs()->count() == 0)
            return;
        inquiry.reset();
        startIn(late);
    }

    void tellFound(const QList<FoundOrder> &found)
    {
        window.dialogs()->disconnect(this);
        inform(window, foundTitle(found), described(found));
        deleteLater();
    }

    KRWindow &window;
    Timer timer;
    std::unique_ptr<OrderInquiry> inquiry;
};

void show(KRWindow &window, std::unique_ptr<SearchAlert> alert)
{
    OrderDialogs::lookQuietly(window, late);
    SearchAlert *const shown = alert.get();
    window.show(std::move(alert));
    shown->start();
}
} // namespace

void OrderDialogs::tellOutcome(KRWindow &window, const SentOrder &sent, const OrderWays &ways)
{
    switch (sent.outcome) {
    case OrderOutcome::Placed:
        return tellPlaced(window, sent.order, ways);
    case OrderOutcome::PlacedUnnamed:
        return;
    case OrderOutcome::NotPlaced:
        if (!areOpen(ways))
            tellNotPlaced(window, sent);
        return;
    case OrderOutcome::Unknown:
        return tell(window, sent.order, ways);
    }
}

void OrderDialogs::tell(KRWindow &window, const OrderIntent &order, const OrderWays &ways)
{
    const QString news = QStringLiteral("没有收到服务器的答复，这笔委托可能已经提交。正在查询今日委托…");
    show(window, std::make_unique<SearchAlert>(
                     TZInfoAlertViewModel{unknownTitle, below(order, news), {}, QStringLiteral("稍后再查")},
                     order, ways, OwnedAction()));
}

void OrderDialogs::ask(KRWindow &window, const OrderIntent &order, const OrderWays &ways,
                       const OwnedAction &again)
{
    lookQuietly(window, late);
    QStringList times;
    for (const OrderIntent &unknown : UnknownOrders::like(order))
        times.append(Service::formatTimeStamp(unknown.sentAt));
    const QString question =
        QStringLiteral("%1 提交的同一笔委托结果未知，可能已经成交。再次提交将是另一笔委托。")
            .arg(times.join(u'、'));
    const QString news = QStringLiteral("正在查询今日委托，没有这笔委托才会再次提交…");
    const auto sendAgain = [host = &window, order, ways, again, news] {
        show(*host, std::make_unique<SearchAlert>(
                        TZInfoAlertViewModel{againTitle, below(order, news), {}, QStringLiteral("不提交")},
                        order, ways, again));
    };
    const auto search = [host = &window, order, ways] { tell(*host, order, ways); };
    window.show(std::make_unique<TZInfoAlertView>(
        TZInfoAlertViewModel{QStringLiteral("确认再次提交"), below(order, question), againTitle, searchTitle},
        OwnedAction{&window, sendAgain}, OwnedAction{&window, search}));
}

void OrderDialogs::lookQuietly(KRWindow &window, std::chrono::milliseconds after)
{
    delete window.findChild<QObject *>(QuietLook::name, Qt::FindDirectChildrenOnly);
    if (!UnknownOrders::all().isEmpty())
        (new QuietLook(window))->startIn(after);
}
