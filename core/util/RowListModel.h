#pragma once

#include <QAbstractListModel>
#include <QMetaObject>
#include <QMetaProperty>

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

template <typename Row> class RowListModel : public GadgetListModel {
public:
    explicit RowListModel(QObject *parent = nullptr) : GadgetListModel(Row::staticMetaObject, parent) {}

    const QList<Row> &rows() const { return stored; }
    const Row &at(int row) const { return stored.at(row); }

    /// Rows are updated in place where the number is the same, so that a list that is redrawn keeps its
    /// position.
    void setRows(QList<Row> rows)
    {
        if (rows.size() == stored.size() && !rows.isEmpty()) {
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
        beginInsertRows({}, size(), size() + static_cast<int>(rows.size()) - 1);
        stored += rows;
        endInsertRows();
        Q_EMIT countChanged();
    }

    void removeAt(int row)
    {
        beginRemoveRows({}, row, row);
        stored.removeAt(row);
        endRemoveRows();
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
    QList<Row> stored;
};
