#pragma once

#include "core/net/Callbacks.h"
#include "core/platform/Timer.h"
#include "core/shell/KRBaseController.h"
#include "core/shell/MVNoNetView.h"

/// The base of list screens: pull to refresh, load more, the panels of a list that is empty or could not be
/// read.
class TZBaseTableViewController : public KRBaseController, public MVNoNetViewDelegate {
    Q_OBJECT
    Q_PROPERTY(bool refreshing READ refreshing NOTIFY refreshingChanged)
    Q_PROPERTY(bool loadingMore READ loadingMore NOTIFY loadingMoreChanged)
    /// Known to be empty.
    Q_PROPERTY(bool noData READ noData NOTIFY noDataChanged)
    /// Nothing is known of the list, and the last read brought nothing: `noNet` offers to read again.
    Q_PROPERTY(bool failed READ failed NOTIFY noDataChanged)
    Q_PROPERTY(MVNoNetView *noNet READ noNet CONSTANT)
public:
    using KRBaseController::KRBaseController;

    bool refreshing() const { return headerRefreshing; }
    bool loadingMore() const { return footerRefreshing; }
    bool noData() const { return content == Content::Empty; }
    bool failed() const { return content == Content::Unknown && readFailed; }
    MVNoNetView *noNet() { return &noNetPanel; }

    /// The pull: shows the spinner and calls `refreshData`, unless a refresh is running.
    Q_INVOKABLE void beginRefreshing();
    /// The pull at the end: as `beginRefreshing`, with `loadMoreData`.
    Q_INVOKABLE void beginLoadingMore();
    void reloadData() override { beginRefreshing(); }

    void viewDidLoad() override;
    void viewDidDisappear() override;
    ~TZBaseTableViewController() override;

Q_SIGNALS:
    void refreshingChanged();
    void loadingMoreChanged();
    void noDataChanged();

protected:
    /// A screen without anything to read has nothing to wait for.
    virtual void refreshData() { endRefreshing(); }
    virtual void loadMoreData() { endRefreshing(); }
    /// Ends the refresh when the latest read is over, whatever came of it, and after 15 seconds at the
    /// latest. A null operation (nothing was sent) ends it at once.
    void refreshUntilAnswered(const Operation &operation);
    /// Ends both spinners.
    void endRefreshing();
    /// Ends what is still running then, so that a lost answer never leaves a spinner on.
    void endRefreshingAfter(std::chrono::seconds delay);
    /// Called with every list that comes, whether it has no rows. A screen that has something to show
    /// whatever comes says so once, with false.
    void setNoData(bool noData);

private:
    enum class Content { Unknown, Empty, Rows };

    void setContent(Content now, bool lastReadFailed);
    void readEnded();
    void setRefreshing(bool refreshing);
    void setLoadingMore(bool loading);

    Timer guard;
    quint64 latestRead = 0;
    bool headerRefreshing = false;
    bool footerRefreshing = false;
    Content content = Content::Unknown;
    bool readFailed = false;
    MVNoNetView noNetPanel{*this};
};
