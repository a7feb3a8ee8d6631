#include "trading/screens/OrderDialogs.h"

#include "core/net/ToolPolicy.h"
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
const QString leaveTitle = QStringLiteral("实盘炒股");
const QString searchTitle = QStringLiteral("查询委托");
const QString againTitle = QStringLiteral("再次提交");
const QString understoodTitle = QStringLiteral("知道了");

/// Longer than a request may take, and than the books may need for what was sent before it.
constexpr std::chrono::milliseconds late = 30s;

/// What is said while it is not known which entrust an order became.
struct SearchTexts {
    QString title;
    QString searching;
    /// With the times of the submissions.
    QString question;
    QString notFound;
    QString unreadable;

    /// Of all unknown orders like this one.
    static const SearchTexts &of(const OrderIntent &order);
};

const SearchTexts &SearchTexts::of(const OrderIntent &order)
{
    static const SearchTexts unknown{
        QStringLiteral("委托结果未知"),
        QStringLiteral("没有收到服务器的确认，这笔委托可能已经提交。正在查询今日委托…"),
        QStringLiteral("%1 提交的同一笔委托结果未知，可能已经成交。再次提交将是另一笔委托。"),
        QStringLiteral(
            "今日委托中没有这笔委托，它可能没有提交成功，也可能稍后才会出现。再次提交前会请您确认。"),
        QStringLiteral("没有读到今日委托，不能确定这笔委托是否已经提交。"),
    };
    static const SearchTexts accepted{
        QStringLiteral("委托已受理"),
        QStringLiteral("服务器已受理这笔委托，没有告知是哪一笔。正在查询今日委托…"),
        QStringLiteral("%1 提交的同一笔委托已受理，尚未在今日委托中找到。再次提交将是另一笔委托。"),
        QStringLiteral("这笔委托已受理，尚未在今日委托中找到，可能稍后才会出现。再次提交前会请您确认。"),
        QStringLiteral("没有读到今日委托，不能确定已受理的是哪一笔。"),
    };
    const QList<OrderIntent> like = UnknownOrders::like(order);
    const bool all = std::all_of(like.begin(), like.end(), [](const auto &each) { return each.accepted; });
    return all && !like.isEmpty() ? accepted : unknown;
}

QString below(const OrderIntent &order, const QString &news)
{
    return order.text() + QStringLiteral("\n\n") + news;
}

bool isRefused(const FoundOrder &found)
{
    constexpr int refused = 9;
    return integerValue(found.entrust.status) == refused;
}

bool isAnyCertain(const QList<FoundOrder> &found)
{
    return std::any_of(found.begin(), found.end(), [](const FoundOrder &each) { return each.certain; });
}

/// "委托编号 10004", "状态：委托中", "提交时间 10:00:00" under each other, without what the service left out.
QString described(const FoundOrder &found)
{
    const TZEntrustsTodayModel &entrust = found.entrust;
    QStringList parts;
    if (!Service::whetherAnEmptyString(entrust.entrustNo))
        parts.append(QStringLiteral("委托编号 %1").arg(entrust.entrustNo));
    if (const QString status = EntrustStatus::of(entrust.status).text; !status.isEmpty())
        parts.append(QStringLiteral("状态：%1").arg(status));
    if (OrderIntent::serviceTime(entrust.createdAt) > 0)
        parts.append(QStringLiteral("提交时间 %1").arg(Service::formatTimeStamp(entrust.createdAt)));
    QString text = parts.join(u'\n');
    if (!found.certain)
        text.prepend(QStringLiteral("可能是这笔："));
    if (!Service::whetherAnEmptyString(entrust.errorMsg))
        text += u'\n' + entrust.errorMsg;
    return text;
}

/// The unknown orders of this kind that none of the entrusts may have come of.
qsizetype countMissing(const OrderIntent &kind, const QList<FoundOrder> &found)
{
    QList<OrderIntent> missing = UnknownOrders::like(kind);
    missing.removeIf([&found](const OrderIntent &order) {
        return std::any_of(found.begin(), found.end(),
                           [&order](const FoundOrder &each) { return each.order.isSameIntent(order); });
    });
    return missing.size();
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
        if (const auto missing = countMissing(kind, found); missing > 0)
            lines.append(QStringLiteral("另有 %1 次提交没有找到，可能稍后才会出现。").arg(missing));
        texts.append(below(kind, lines.join(u'\n')));
    }
    if (!isAnyCertain(found))
        texts.append(QStringLiteral("请核对是不是这笔委托。再次提交前会请您确认。"));
    return texts.join(QStringLiteral("\n\n"));
}

QString foundTitle(const QList<FoundOrder> &found)
{
    const auto certain =
        std::count_if(found.begin(), found.end(), [](const FoundOrder &each) { return each.certain; });
    if (certain == 0)
        return QStringLiteral("可能找到了这笔委托");
    return certain == 1 ? QStringLiteral("已找到这笔委托") : QStringLiteral("已找到 %1 笔委托").arg(certain);
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
    const QString message = ToolPolicy::message(sent.answer);
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
        inquiry = std::make_unique<OrderInquiry>(UnknownOrders::like(order), again ? 1 : 2, nullptr);
        connect(inquiry.get(), &OrderInquiry::found, this, &SearchAlert::tellFound);
        connect(inquiry.get(), &OrderInquiry::notFound, this, &SearchAlert::tellNotFound);
        connect(inquiry.get(), &OrderInquiry::unreadable, this, &SearchAlert::tellUnreadable);
        // What nobody sees any more must neither settle nor send anything.
        connect(this, &KRDialog::removed, this, [this] { inquiry.reset(); });
        inquiry->start();
    }

private:
    void tellFound(const QList<FoundOrder> &found)
    {
        const QString title = foundTitle(found);
        const QString text = described(found);
        const bool stands = std::any_of(found.begin(), found.end(), [](const FoundOrder &each) {
            return each.certain && !isRefused(each);
        });
        if (stands)
            ways.whenPlaced();
        if (again && !isAnyCertain(found))
            say({title, text, againTitle, understoodTitle}, again, {});
        else if (stands && areOpen(ways))
            say({title, text, leaveTitle, OrderTexts::of(order.side).continueTitle}, ways.leave, ways.goOn);
        else
            say({title, text, {}, understoodTitle}, {}, {});
    }

    void tellNotFound()
    {
        if (again) {
            // It is still speaking when it goes with the dialog.
            inquiry.release()->deleteLater();
            removeFromWindow();
            again();
            return;
        }
        say({QStringLiteral("未找到这笔委托"), below(order, SearchTexts::of(order).notFound), understoodTitle,
             searchTitle},
            {}, search());
    }

    void tellUnreadable()
    {
        const SearchTexts &texts = SearchTexts::of(order);
        const QString text = below(order, texts.unreadable);
        if (again)
            say({texts.title, text, againTitle, searchTitle}, again, search());
        else
            say({texts.title, text, understoodTitle, searchTitle}, {}, search());
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
    std::unique_ptr<OrderInquiry> inquiry;
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
        deleteLater();
        const bool isNews = std::any_of(found.begin(), found.end(), [](const FoundOrder &each) {
            return each.certain || !each.toldBefore;
        });
        if (isNews)
            inform(window, foundTitle(found), described(found));
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
    const SearchTexts &texts = SearchTexts::of(order);
    show(window,
         std::make_unique<SearchAlert>(
             TZInfoAlertViewModel{texts.title, below(order, texts.searching), {}, QStringLiteral("稍后再查")},
             order, ways, OwnedAction()));
}

void OrderDialogs::ask(KRWindow &window, const OrderIntent &order, const OrderWays &ways,
                       const OwnedAction &again)
{
    lookQuietly(window, late);
    QStringList times;
    for (const OrderIntent &unknown : UnknownOrders::like(order))
        times.append(Service::formatTimeStamp(unknown.sentAt));
    const QString question = SearchTexts::of(order).question.arg(times.join(u'、'));
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
