#include "trading/screens/OrderInquiry.h"

#include "core/net/Callbacks.h"
#include "core/util/Text.h"
#include "trading/api/TZTradeTool.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {
constexpr int mostLooks = 2;
constexpr int mostPages = 100;
} // namespace

void OrderInquiry::start()
{
    looks = 0;
    read(0);
}

void OrderInquiry::read(int page)
{
    auto answered = std::make_shared<bool>(false);
    const auto answer = [this, page, answered](const Operation &operation, const QVariantMap &dictionary) {
        // Without a network the stored copy comes, and no operation: that one proves nothing.
        if (!operation)
            return;
        *answered = true;
        look(page, fromArray<TZEntrustsTodayModel>(dictionary.value(QStringLiteral("data"))));
    };
    // As the list of today's entrusts asks: the first page without its number.
    const QVariantMap param = page == 0 ? QVariantMap() : QVariantMap{{QStringLiteral("page"), page}};
    const Operation operation = TZTradeTool::getEntrustsTodayWithParam(param, Success{this, answer}, {});
    if (!operation) {
        Q_EMIT unreadable();
        return;
    }
    connect(operation.get(), &RequestOperation::finished, this, [this, answered] {
        if (!*answered)
            Q_EMIT unreadable();
    });
}

void OrderInquiry::look(int page, const QList<TZEntrustsTodayModel> &entrusts)
{
    const auto own = std::find_if(entrusts.begin(), entrusts.end(),
                                  [this](const auto &entrust) { return intent.became(entrust); });
    if (own != entrusts.end()) {
        Q_EMIT found(*own);
        return;
    }
    if (!isLast(entrusts)) {
        firstOfLastPage = entrusts.constFirst().id;
        if (page + 1 == mostPages)
            Q_EMIT unreadable();
        else
            read(page + 1);
        return;
    }
    firstOfLastPage.clear();
    if (++looks == mostLooks)
        Q_EMIT notFound();
    else
        again.startOnce(3s, [this] { read(0); });
}

/// Whether what follows cannot hold the order: there is nothing more, the service has no pages and repeats
/// itself, or the newest come first and these reach back beyond the order.
bool OrderInquiry::isLast(const QList<TZEntrustsTodayModel> &entrusts) const
{
    if (entrusts.isEmpty() || entrusts.constFirst().id == firstOfLastPage)
        return true;
    const auto time = [](const TZEntrustsTodayModel &entrust) { return integerValue(entrust.createdAt); };
    const bool newestFirst =
        std::is_sorted(entrusts.begin(), entrusts.end(),
                       [&time](const auto &one, const auto &other) { return time(one) > time(other); });
    return newestFirst && time(entrusts.constLast()) > 0 && time(entrusts.constLast()) < intent.quotedAt;
}
