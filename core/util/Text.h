#pragma once

#include <QMetaObject>
#include <QString>
#include <QVariantMap>

/// How values of decoded answers are read everywhere.

/// The null of decoded JSON.
bool isNullMarker(const QVariant &value);
/// Integral numbers without a point, booleans "1"/"0", other numbers as the shortest text that reads back;
/// null, absent, lists and dictionaries give "".
QString textForm(const QVariant &value);
/// The leading number of a text, blanks before it skipped, also in groups ("1,234.50"); 0 when there is none.
/// Always finite.
double doubleValue(const QVariant &value);
/// Whether `doubleValue` finds a number in it.
bool holdsNumber(const QVariant &value);
/// The leading whole number of a text, read in the same way, clamped to the type; 0 when there is none.
qint64 integerValue(const QVariant &value);
/// A number that is not zero; a text whose first significant character (after blanks, a sign, zeros) is Y, y,
/// T, t or 1 to 9.
bool boolValue(const QVariant &value);
/// Spaces of any width and tabs, but not line breaks, taken off both ends.
QString trimBlanks(const QString &text);

/// Fills a gadget of QString properties from the entries of the same names. Those without an entry stay null
/// texts, and `gadgetToMap` leaves them out, so that presence survives the way there and back.
void fillGadget(const QMetaObject &type, void *gadget, const QVariantMap &map);
QVariantMap gadgetToMap(const QMetaObject &type, const void *gadget);

template <typename Model> Model fromDictionary(const QVariant &dictionary)
{
    Model model;
    fillGadget(Model::staticMetaObject, &model, dictionary.toMap());
    return model;
}

/// Elements that are no dictionaries are left out.
template <typename Model> QList<Model> fromArray(const QVariant &array)
{
    const QVariantList rows = array.toList();
    QList<Model> models;
    models.reserve(rows.size());
    for (const QVariant &row : rows) {
        if (row.typeId() == QMetaType::QVariantMap)
            models.append(fromDictionary<Model>(row));
    }
    return models;
}

template <typename Model> QVariantMap toDictionary(const Model &model)
{
    return gadgetToMap(Model::staticMetaObject, &model);
}
