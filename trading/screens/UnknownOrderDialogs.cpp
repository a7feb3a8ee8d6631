#include "trading/screens/UnknownOrderDialogs.h"

#include "core/shell/KRWindow.h"
#include "core/shell/TZInfoAlertView.h"
#include "core/util/Service.h"
#include "trading/api/EntrustStatus.h"
#include "trading/screens/OrderInquiry.h"
#include "trading/screens/UnknownOrders.h"

namespace {
const QString unknownTitle = QStringLiteral("委托结果未知");
const QString searchTitle = QStringLiteral("查询委托");
const QString understoodTitle = QStringLiteral("知道了");

QString below(const OrderIntent &order, const QString &news)
{
    return order.text() + QStringLiteral("\n\n") + news;
}

QString described(const TZEntrustsTodayModel &entrust)
{
    QString text = QStringLiteral("委托编号 %1，状态：%2")
                       .arg(entrust.entrustNo, EntrustStatus::of(entrust.status).text);
    if (!Service::whetherAnEmptyString(entrust.errorMsg))
        text += u'\n' + entrust.errorMsg;
    return text;
}

class SearchAlert : public TZInfoAlertView {
public:
    SearchAlert(const OrderIntent &unknownOrder, OrderWays orderWays)
        : TZInfoAlertView({unknownTitle,
                           below(unknownOrder, QStringLiteral("没有收到服务器的答复，这笔委托可能已经提交。"
                                                              "正在查询今日委托…")),
                           {},
                           QStringLiteral("稍后再查")},
                          {}, {}),
          order(unknownOrder), ways(std::move(orderWays)), inquiry(unknownOrder)
    {
        connect(&inquiry, &OrderInquiry::found, this, &SearchAlert::found);
        connect(&inquiry, &OrderInquiry::notFound, this, [this] {
            sayInVain(QStringLiteral("未找到这笔委托"),
                      QStringLiteral("今日委托中没有这笔委托，它应该没有提交成功。再次提交前会请您确认。"));
        });
        connect(&inquiry, &OrderInquiry::unreadable, this, [this] {
            sayInVain(unknownTitle, QStringLiteral("没有读到今日委托，不能确定这笔委托是否已经提交。"));
        });
    }

    void start() { inquiry.start(); }

private:
    void found(const TZEntrustsTodayModel &entrust)
    {
        UnknownOrders::settle(order, entrust.id);
        ways.placed();
        const QString text = below(order, described(entrust));
        const QString title = QStringLiteral("已找到这笔委托");
        if (ways.leave && ways.goOn)
            say({title, text, QStringLiteral("实盘炒股"), OrderTexts::of(order.side).continueTitle},
                ways.leave, ways.goOn);
        else
            say({title, text, {}, understoodTitle}, {}, {});
    }

    void sayInVain(const QString &title, const QString &news)
    {
        const auto retry = [host = window(), order = order, ways = ways] {
            UnknownOrderDialogs::tell(*host, order, ways);
        };
        say({title, below(order, news), searchTitle, understoodTitle}, OwnedAction{window(), retry}, {});
    }

    const OrderIntent order;
    const OrderWays ways;
    OrderInquiry inquiry;
};
} // namespace

void UnknownOrderDialogs::tell(KRWindow &window, const OrderIntent &order, const OrderWays &ways)
{
    auto alert = std::make_unique<SearchAlert>(order, ways);
    SearchAlert *const shown = alert.get();
    window.show(std::move(alert));
    shown->start();
}

void UnknownOrderDialogs::ask(KRWindow &window, const OrderIntent &order, const OrderWays &ways,
                              const OwnedAction &again)
{
    const QString news = QStringLiteral("%1 提交的同一笔委托结果未知，可能已经成交。再次提交将是另一笔委托。")
                             .arg(Service::formatTimeStamp(order.sentAt));
    const auto search = [host = &window, order, ways] { tell(*host, order, ways); };
    window.show(std::make_unique<TZInfoAlertView>(
        TZInfoAlertViewModel{QStringLiteral("确认再次提交"), below(order, news), QStringLiteral("再次提交"),
                             searchTitle},
        again, OwnedAction{&window, search}));
}
