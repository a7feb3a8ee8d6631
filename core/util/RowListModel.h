#pragma once

#include <QAbstractListModel>
#include <QMetaObject>
#include <QMetaProperty>
#include <QSet>
#include <algorithm>

/// Rows of one gadget type for a list; each property is a role of its own name.
class GadgetListModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    int count() const { return rowCount(); }
    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : size(); }
    QHash<int, QByteArray> roleNames() const override;
    QVariant data(const QModelIndex &index, int role) const override;

Q_SIGNALS:
    void countChanged();

protected:
    GadgetListModel(const QMetaObject &gadgetType, QObject *parent)
        : QAbstractListModel(parent), type(gadgetType)
    {
    }
    virtual int size() const = 0;
    virtual const void *gadget(int row) const = 0;

private:
    const QMetaObject &type;
};

/// A row that says what it stands for: the number of an order, the code of a stock.
template <typename Row>
concept Identified = requires(const Row &row)
{
    row.identity();
};

template <typename Row> class RowListModel : public GadgetListModel {
public:
    explicit RowListModel(QObject *parent = nullptr) : GadgetListModel(Row::staticMetaObject, parent) {}

    const QList<Row> &rows() const { return stored; }
    const Row &at(int row) const { return stored.at(row); }

    /// Rows that stand for the same as before are moved and updated, so that what a finger is on, or the
    /// keyboard, stays what it was. Rows without an identity are updated in place where the number is the
    /// same, so that a list that is redrawn keeps its position.
    void setRows(QList<Row> rows)
    {
        if constexpr (Identified<Row>) {
            if (const QSet<QString> staying = identitiesOf(stored) & identitiesOf(rows); !staying.isEmpty())
                return merge(rows, staying);
        } else if (rows.size() == stored.size() && !rows.isEmpty()) {
            stored = std::move(rows);
            Q_EMIT dataChanged(index(0), index(size() - 1));
            return;
        }
        beginResetModel();
        stored = std::move(rows);
        endResetModel();
        Q_EMIT countChanged();
    }

    void append(const QList<Row> &rows)
    {
        if (rows.isEmpty())
            return;
        insert(size(), rows);
        Q_EMIT countChanged();
    }

    void removeAt(int row)
    {
        remove(row, row + 1);
        Q_EMIT countChanged();
    }

    void setRow(int row, const Row &value)
    {
        stored[row] = value;
        Q_EMIT dataChanged(index(row), index(row));
    }

protected:
    int size() const override { return static_cast<int>(stored.size()); }
    const void *gadget(int row) const override { return &stored.at(row); }

private:
    static QSet<QString> identitiesOf(const QList<Row> &rows)
    {
        QSet<QString> identities;
        for (const Row &row : rows)
            identities.insert(row.identity());
        return identities;
    }

    void merge(const QList<Row> &rows, const QSet<QString> &staying)
    {
        const int before = size();
        const auto stays = [&staying](const Row &row) { return staying.contains(row.identity()); };
        for (int end = size(); end > 0; --end) {
            int first = end;
            while (first > 0 && !stays(stored.at(first - 1)))
                --first;
            remove(first, end);
            end = first;
        }
        for (int row = 0; row < rows.size(); ++row) {
            int next = row;
            while (next < rows.size() && !stays(rows.at(next)))
                ++next;
            insert(row, rows.mid(row, next - row));
            row = next;
            if (row < rows.size())
                bring(row, rows.at(row));
        }
        remove(static_cast<int>(rows.size()), size());
        Q_EMIT dataChanged(index(0), index(size() - 1));
        if (size() != before)
            Q_EMIT countChanged();
    }

    void remove(int first, int end)
    {
        if (first >= end)
            return;
        beginRemoveRows({}, first, end - 1);
        stored.remove(first, end - first);
        endRemoveRows();
    }

    void insert(int at, const QList<Row> &rows)
    {
        if (rows.isEmpty())
            return;
        beginInsertRows({}, at, at + static_cast<int>(rows.size()) - 1);
        stored = stored.mid(0, at) + rows + stored.mid(at);
        endInsertRows();
    }

    /// Puts the row that stood for the same, or else a new one, at `to`; what stands before is in its place.
    void bring(int to, const Row &row)
    {
        const auto old = std::find_if(stored.cbegin() + to, stored.cend(), [&row](const Row &other) {
            return other.identity() == row.identity();
        });
        const int from = static_cast<int>(old - stored.cbegin());
        if (from == size())
            return insert(to, {row});
        if (from > to) {
            beginMoveRows({}, from, from, {}, to);
            stored.move(from, to);
            endMoveRows();
        }
        stored[to] = row;
    }

    QList<Row> stored;
};
