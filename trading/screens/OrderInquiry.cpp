#include "trading/screens/OrderInquiry.h"

#include "core/net/Callbacks.h"
#include "core/util/Service.h"
#include "core/util/Text.h"
#include "trading/api/TZTradeTool.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {
constexpr int mostPages = 100;

/// None unless it is a list of entrusts, each with an identifier: anything else proves nothing.
std::optional<QList<TZEntrustsTodayModel>> entrustsIn(const QVariant &data)
{
    if (data.typeId() != QMetaType::QVariantList)
        return std::nullopt;
    const auto entrusts = fromArray<TZEntrustsTodayModel>(data);
    const bool isWhole = entrusts.size() == data.toList().size() &&
                         std::none_of(entrusts.begin(), entrusts.end(), [](const auto &entrust) {
                             return Service::whetherAnEmptyString(entrust.id);
                         });
    return isWhole ? std::optional(entrusts) : std::nullopt;
}
} // namespace

OrderInquiry::OrderInquiry(QList<OrderIntent> orders, int mostLooks, QObject *parent)
    : QObject(parent), sought(std::move(orders)), looksLeft(mostLooks)
{
}

void OrderInquiry::look()
{
    entrusts.clear();
    firstOfPreviousPage.reset();
    read(0);
}

void OrderInquiry::read(int page)
{
    auto answered = std::make_shared<bool>(false);
    const auto answer = [this, page, answered](const Operation &, const QVariantMap &dictionary) {
        *answered = true;
        take(page, dictionary.value(QStringLiteral("data")));
    };
    // As the list of today's entrusts asks: the first page without its number.
    const QVariantMap param = page == 0 ? QVariantMap() : QVariantMap{{QStringLiteral("page"), page}};
    const Operation operation = TZTradeTool::readEntrustsTodayWithParam(param, Success{this, answer}, {});
    connect(operation.get(), &RequestOperation::finished, this, [this, answered] {
        if (!*answered)
            Q_EMIT unreadable();
    });
}

void OrderInquiry::take(int page, const QVariant &data)
{
    const std::optional<QList<TZEntrustsTodayModel>> read = entrustsIn(data);
    if (!read) {
        Q_EMIT unreadable();
        return;
    }
    const bool last = isLast(*read);
    for (const TZEntrustsTodayModel &entrust : *read) {
        const auto isSame = [&entrust](const auto &each) { return each.id == entrust.id; };
        // A new entrust shifts those of the pages that follow.
        if (std::none_of(entrusts.begin(), entrusts.end(), isSame))
            entrusts.append(entrust);
    }
    if (last) {
        finish();
    } else if (page + 1 == mostPages) {
        Q_EMIT unreadable();
    } else {
        firstOfPreviousPage = read->constFirst().id;
        this->read(page + 1);
    }
}

void OrderInquiry::finish()
{
    const QList<FoundOrder> orders = UnknownOrders::settle(sought, entrusts);
    if (!orders.isEmpty())
        Q_EMIT found(orders);
    else if (--looksLeft == 0)
        Q_EMIT notFound();
    else
        again.startOnce(3s, [this] { look(); });
}

/// Whether what follows cannot hold any of the orders: there is nothing more, the service has no pages and
/// repeats itself, or the newest come first and these reach back beyond the orders.
bool OrderInquiry::isLast(const QList<TZEntrustsTodayModel> &page) const
{
    if (page.isEmpty() || page.constFirst().id == firstOfPreviousPage)
        return true;
    const auto time = [](const TZEntrustsTodayModel &entrust) {
        return OrderIntent::serviceTime(entrust.createdAt);
    };
    const bool newestFirst =
        std::is_sorted(page.begin(), page.end(),
                       [&time](const auto &one, const auto &other) { return time(one) > time(other); });
    const qint64 oldest = time(page.constLast());
    // Where all times are one, nothing says in which order they come.
    return newestFirst && time(page.constFirst()) > oldest && oldest > 0 &&
           std::all_of(sought.begin(), sought.end(), [oldest](const auto &order) {
               return oldest < order.quotedAt - OrderIntent::clockTolerance;
           });
}
