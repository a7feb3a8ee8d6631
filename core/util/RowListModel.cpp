#include "core/util/RowListModel.h"

QHash<int, QByteArray> GadgetListModel::roleNames() const
{
    QHash<int, QByteArray> names;
    for (int i = 0; i < type.propertyCount(); ++i)
        names.insert(Qt::UserRole + i, type.property(i).name());
    return names;
}

QVariant GadgetListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= size() || role < Qt::UserRole)
        return {};
    return type.property(role - Qt::UserRole).readOnGadget(gadget(index.row()));
}
