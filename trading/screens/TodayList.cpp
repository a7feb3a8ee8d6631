#include "trading/screens/TodayList.h"

TodayList::TodayList(Read readPage, FirstPage first, std::function<void()> startGuard)
    : read(readPage), firstPage(first), guard(std::move(startGuard))
{
}

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
    const bool numbered = wanted > 0 || firstPage == FirstPage::Numbered;
    const QVariantMap param = numbered ? QVariantMap{{QStringLiteral("page"), wanted}} : QVariantMap();
    const Operation operation = read(param, Success{this, answered}, {});
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
