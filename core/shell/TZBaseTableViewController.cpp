#include "core/shell/TZBaseTableViewController.h"

#include "core/util/Service.h"

using namespace std::chrono_literals;

TZBaseTableViewController::~TZBaseTableViewController()
{
    hidenWaitngView();
}

void TZBaseTableViewController::viewDidLoad()
{
    KRBaseController::viewDidLoad();
    changeNavStyle();
    changeBlueBgColor();
}

void TZBaseTableViewController::viewDidDisappear()
{
    endRefreshing();
    hidenWaitngView();
}

void TZBaseTableViewController::beginRefreshing()
{
    if (headerRefreshing)
        return;
    setRefreshing(true);
    refreshData();
}

void TZBaseTableViewController::beginLoadingMore()
{
    if (footerRefreshing || headerRefreshing)
        return;
    setLoadingMore(true);
    loadMoreData();
}

void TZBaseTableViewController::refreshUntilAnswered(const Operation &operation)
{
    latestRead = operation ? operation->number : 0;
    if (!operation)
        return readEnded();
    setContent(content, false);
    connect(operation.get(), &RequestOperation::finished, this, [this, read = latestRead] {
        if (read == latestRead)
            readEnded();
    });
    endRefreshingAfter(15s);
}

void TZBaseTableViewController::readEnded()
{
    endRefreshing();
    setContent(content, content == Content::Unknown);
}

void TZBaseTableViewController::endRefreshing()
{
    guard.stop();
    setRefreshing(false);
    setLoadingMore(false);
}

void TZBaseTableViewController::endRefreshingAfter(std::chrono::seconds delay)
{
    guard.startOnce(delay, [this] { readEnded(); });
}

void TZBaseTableViewController::setNoData(bool noData)
{
    setContent(noData ? Content::Empty : Content::Rows, false);
}

void TZBaseTableViewController::setContent(Content now, bool lastReadFailed)
{
    if (content == now && readFailed == lastReadFailed)
        return;
    content = now;
    readFailed = lastReadFailed;
    Q_EMIT noDataChanged();
}

void TZBaseTableViewController::setRefreshing(bool refreshing)
{
    if (headerRefreshing == refreshing)
        return;
    headerRefreshing = refreshing;
    Q_EMIT refreshingChanged();
}

void TZBaseTableViewController::setLoadingMore(bool loading)
{
    if (footerRefreshing == loading)
        return;
    footerRefreshing = loading;
    Q_EMIT loadingMoreChanged();
}
