#pragma once

#include "core/net/Callbacks.h"
#include "core/platform/Timer.h"
#include "core/shell/KRBaseController.h"

/// The base of list screens: pull to refresh, load more, the panel of an empty list.
class TZBaseTableViewController : public KRBaseController {
    Q_OBJECT
    Q_PROPERTY(bool refreshing READ refreshing NOTIFY refreshingChanged)
    Q_PROPERTY(bool loadingMore READ loadingMore NOTIFY loadingMoreChanged)
    Q_PROPERTY(bool noData READ noData NOTIFY noDataChanged)
public:
    using KRBaseController::KRBaseController;

    bool refreshing() const { return headerRefreshing; }
    bool loadingMore() const { return footerRefreshing; }
    bool noData() const { return empty; }

    /// The pull: shows the spinner and calls `refreshData`, unless a refresh is running.
    Q_INVOKABLE void beginRefreshing();
    /// The pull at the end: as `beginRefreshing`, with `loadMoreData`.
    Q_INVOKABLE void beginLoadingMore();

    void viewDidLoad() override;
    void viewDidDisappear() override;
    ~TZBaseTableViewController() override;

Q_SIGNALS:
    void refreshingChanged();
    void loadingMoreChanged();
    void noDataChanged();

protected:
    virtual void refreshData() {}
    virtual void loadMoreData() {}
    /// Ends the refresh when the latest read is over, whatever came of it, and after 15 seconds at the
    /// latest. A null operation (nothing was sent) ends it at once.
    void refreshUntilAnswered(const Operation &operation);
    /// Ends both spinners.
    void endRefreshing();
    /// Ends what is still running then, so that a lost answer never leaves a spinner on.
    void endRefreshingAfter(std::chrono::seconds delay);
    void setNoData(bool noData);

private:
    void setRefreshing(bool refreshing);
    void setLoadingMore(bool loading);

    Timer guard;
    quint64 latestRead = 0;
    bool headerRefreshing = false;
    bool footerRefreshing = false;
    bool empty = false;
};
