#include "core/session/SettingsKeys.h"
#include "tests/trading/TradingFixture.h"
#include "trading/screens/TZDealAndEntrustController.h"

#include <QAccessible>
#include <QDeadlineTimer>
#include <QMouseEvent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>

namespace {
constexpr int many = 10'000;
/// Twice the rows that a window of 844 points shows, and what the page has besides.
constexpr int fewRows = 40;
constexpr int fewNodes = 120;

QVariantList entrusts(int count, int first = 0)
{
    QVariantList all;
    for (int i = 0; i < count; ++i)
        all.append(QVariantMap{{"id", QString::number(first + i)},
                               {"stockCode", "600001"},
                               {"stockName", "海天传媒"},
                               {"type", QString::number(i % 2 + 1)},
                               {"status", QString::number(i % 10)},
                               {"entrustPrice", "12.34"},
                               {"entrustShares", "100"},
                               {"createdAt", "1795261158653"}});
    return all;
}

int nodesUnder(QAccessibleInterface *top)
{
    int nodes = 1;
    for (int i = 0; i < top->childCount(); ++i)
        nodes += nodesUnder(top->child(i));
    return nodes;
}

/// The name of what is selected: one of the two titles.
QString selectedTab(QAccessibleInterface *top)
{
    if (top->state().selected)
        return top->text(QAccessible::Name);
    for (int i = 0; i < top->childCount(); ++i) {
        if (const QString selected = selectedTab(top->child(i)); !selected.isEmpty())
            return selected;
    }
    return {};
}
} // namespace

class LongListTest : public TradingFixture {
protected:
    LongListTest()
    {
        settings.setValue(SettingsKeys::networkStatus, true);
        screen = push<TZDealAndEntrustController>();
        http.answer(entrustsPath, succeeded(entrusts(many)));
        view.engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
        view.setInitialProperties({{"controller", QVariant::fromValue(screen)}});
        view.setResizeMode(QQuickView::SizeRootObjectToView);
        view.resize(390, 844);
        view.setSource(QUrl("qrc:/qt/qml/Zorvane/Trading/TZDealAndEntrustView.qml"));
        view.show();
        list = find(view.rootObject());
        page = screen->entrustTableView();
    }

    static QQuickItem *find(QQuickItem *from)
    {
        if (from->property("name") == "当日委托" && from->inherits("QQuickListView"))
            return from;
        for (QQuickItem *const child : from->childItems()) {
            if (QQuickItem *const found = find(child))
                return found;
        }
        return nullptr;
    }
    void scrollTo(double contentY)
    {
        list->setProperty("contentY", contentY);
        view.grabWindow();
    }
    /// Drags the content with the left button.
    void drag(double from, double to)
    {
        const auto send = [this](QEvent::Type type, double x) {
            const QPointF at(x, 400);
            QMouseEvent event(
                type, at, view.mapToGlobal(at), type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
            event.setTimestamp(time += 16);
            QCoreApplication::sendEvent(&view, &event);
        };
        send(QEvent::MouseButtonPress, from);
        for (int step = 1; step <= 20; ++step)
            send(QEvent::MouseMove, from + (to - from) * step / 20);
        send(QEvent::MouseButtonRelease, to);
    }
    static void passUntil(const std::function<bool()> &done)
    {
        const QDeadlineTimer limit(3s);
        while (!done() && !limit.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    qsizetype rowsMade() const
    {
        return list->property("contentItem").value<QQuickItem *>()->childItems().size();
    }

    const QString entrustsPath = QStringLiteral("entrustsToday");
    QQuickView view;
    quint64 time = 1'000;
    QQuickItem *list = nullptr;
    TZDealAndEntrustController *screen = nullptr;
    TodayList *page = nullptr;
};

TEST_F(LongListTest, OnlyWhatIsVisibleIsMadeAndSpokenOf)
{
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->property("count"), many);
    const double end = list->property("contentHeight").toDouble() - list->height();
    for (const double part : {0.0, 0.3, 1.0, 0.5}) {
        scrollTo(end * part);
        EXPECT_GT(rowsMade(), 8);
        EXPECT_LT(rowsMade(), fewRows) << part;
        const int nodes = nodesUnder(QAccessible::queryAccessibleInterface(&view));
        EXPECT_GT(nodes, 8) << part;
        EXPECT_LT(nodes, fewNodes) << part;
    }
    for (int step = 0; step < 200; ++step)
        scrollTo(end * 0.5 + 50 * step);
    EXPECT_LT(rowsMade(), fewRows) << "after a long way";
}

TEST_F(LongListTest, AFurtherPageLeavesThePlaceWhereItWas)
{
    ASSERT_NE(list, nullptr);
    const double end = list->property("contentHeight").toDouble() - list->height();
    scrollTo(end);
    page->beginLoadingMore();
    http.answer(entrustsPath, succeeded(entrusts(20, many)));
    view.grabWindow();
    EXPECT_EQ(list->property("count"), many + 20);
    EXPECT_NEAR(list->property("contentY").toDouble(), end, 1);
    EXPECT_LT(rowsMade(), fewRows);
}

TEST_F(LongListTest, ASwipeTurnsThePageAndTheTitleFollows)
{
    passUntil([this] { return view.isExposed(); });
    view.grabWindow();
    QAccessibleInterface *const spoken = QAccessible::queryAccessibleInterface(&view);
    EXPECT_EQ(selectedTab(spoken), "当日委托");
    drag(350, 40);
    passUntil([this] { return screen->currentPage() == 1; });
    EXPECT_EQ(screen->currentPage(), 1);
    EXPECT_EQ(selectedTab(spoken), "当日成交");
    EXPECT_EQ(http.countOf("detailsToday"), 1) << "its list is read";
    drag(40, 350);
    passUntil([this] { return screen->currentPage() == 0; });
    EXPECT_EQ(selectedTab(spoken), "当日委托");
}
