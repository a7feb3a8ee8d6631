#include "trading/screens/TodayList.h"

TodayList::TodayList(std::function<void()> startGuard) : guard(std::move(startGuard)) {}

void TodayList::refreshData()
{
    ask(0);
}

void TodayList::loadMoreData()
{
    ask(++counter);
}

void TodayList::ask(int wanted)
{
    const auto answered = [this, wanted](const Operation &, const QVariantMap &answer) {
        show(wanted, answer.value(QStringLiteral("data")));
    };
    const Operation operation = requestPage(wanted, Success{this, answered});
    if (!operation)
        return ended(wanted);
    connect(operation.get(), &RequestOperation::finished, this, [this, wanted] { ended(wanted); });
    guard();
}

void TodayList::show(int wanted, const QVariant &data)
{
    if (wanted == 0) {
        counter = 0;
        replace(data);
    } else if (wanted == counter) {
        append(data);
    } else {
        // Refreshed meanwhile: this page belongs to the list before.
        return;
    }
    answeredPage = counter;
}

void TodayList::ended(int wanted)
{
    // A page that did not come is asked for again next time.
    if (wanted == counter)
        counter = answeredPage;
    endRefreshing();
}
