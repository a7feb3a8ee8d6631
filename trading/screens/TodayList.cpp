#include "trading/screens/TodayList.h"

void TodayList::refreshData()
{
    ask(0);
}

void TodayList::loadMoreData()
{
    // Counted from what is shown: a page that did not come is asked for again.
    counter = shownPage + 1;
    ask(counter);
}

void TodayList::ask(int wanted)
{
    const auto answered = [this, wanted](const Operation &operation, const QVariantMap &answer) {
        show(operation, wanted, answer.value(QStringLiteral("data")));
    };
    const bool numbered = wanted > 0 || firstPage == FirstPage::Numbered;
    const QVariantMap param = numbered ? QVariantMap{{QStringLiteral("page"), wanted}} : QVariantMap();
    refreshUntilAnswered(read(param, Success{this, answered}, {}));
}

void TodayList::show(const Operation &operation, int wanted, const QVariant &data)
{
    if (wanted == 0) {
        counter = 0;
        shownRefresh = operation ? operation->number : 0;
        replace(data);
    } else {
        // The stored copy is no further page, and a page of the list before a refresh is none of this one.
        if (!operation || wanted != shownPage + 1 || operation->number < shownRefresh)
            return;
        append(data);
    }
    shownPage = wanted;
}
