#pragma once

#include "core/net/Callbacks.h"
#include "core/shell/TZBaseTableViewController.h"
#include "core/util/RowListModel.h"
#include "core/util/Service.h"
#include "core/util/Text.h"

#include <algorithm>

/// One of the two lists of today, read page by page. Pages count from 0; of a further page what is not there
/// yet is appended, a refresh replaces all.
class TodayList : public TZBaseTableViewController {
    Q_OBJECT
    Q_PROPERTY(GadgetListModel *rows READ rows CONSTANT)
public:
    using Read = Operation (*)(const QVariantMap &param, Success success, Failure andError);
    /// How the first page is asked for: with "page" 0, or without parameters.
    enum class FirstPage { Numbered, Unnumbered };

    TodayList(Read readPage, FirstPage first) : read(readPage), firstPage(first) {}

    virtual GadgetListModel *rows() = 0;
    /// The page that was asked for last; 0 again once a refresh has been answered.
    int currentPage() const { return counter; }
    using TZBaseTableViewController::endRefreshing;

protected:
    virtual void replace(const QVariant &data) = 0;
    virtual void append(const QVariant &data) = 0;

    void refreshData() override;
    void loadMoreData() override;

private:
    void ask(int wanted);
    void show(const Operation &operation, int wanted, const QVariant &data);

    const Read read;
    const FirstPage firstPage;
    int counter = 0;
    int shownPage = 0;
    quint64 shownRefresh = 0;
};

/// A `TodayList` of `Model`s shown as `Row`s; `Row::of(model)` makes a row.
template <typename Model, typename Row> class TodayListOf : public TodayList {
public:
    using TodayList::TodayList;
    GadgetListModel *rows() override { return &shownRows; }
    const QList<Model> &models() const { return all; }

protected:
    void replace(const QVariant &data) override
    {
        all = fromArray<Model>(data);
        shownRows.setRows(rowsOf(all));
        setNoData(all.isEmpty());
    }
    void append(const QVariant &data) override
    {
        QList<Model> further = fromArray<Model>(data);
        // What has come since the page before shifts its last rows to this one.
        further.removeIf([this](const Model &each) { return isShown(each.id); });
        all += further;
        shownRows.append(rowsOf(further));
    }

private:
    bool isShown(const QString &id) const
    {
        return !Service::whetherAnEmptyString(id) &&
               std::any_of(all.begin(), all.end(), [&id](const Model &each) { return each.id == id; });
    }
    static QList<Row> rowsOf(const QList<Model> &models)
    {
        QList<Row> made;
        for (const Model &model : models)
            made.append(Row::of(model));
        return made;
    }

    QList<Model> all;
    RowListModel<Row> shownRows;
};
