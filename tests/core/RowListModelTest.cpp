#include "core/util/RowListModel.h"

#include "core/shell/OverlayHost.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace {
/// A row that goes by its text.
struct Named : MVNoticeView {
    QString identity() const { return content; }
};

QString textOf(const RowListModel<Named> &model)
{
    QString text;
    for (const Named &row : model.rows())
        text += row.content;
    return text;
}
} // namespace

TEST(RowListModel, WhateverComesARowThatStaysIsFollowedToItsNewPlace)
{
    std::mt19937 random(1);
    RowListModel<Named> model;
    const int content = model.roleNames().key("content");
    for (int round = 0; round < 2000; ++round) {
        QString letters = QStringLiteral("ABCDEFGH");
        std::shuffle(letters.begin(), letters.end(), random);
        letters.truncate(static_cast<int>(random() % 9));
        // A service may send the same one twice.
        if (random() % 4 == 0)
            letters += letters.left(2);
        QMap<QString, QPersistentModelIndex> before;
        for (int row = 0; row < model.count(); ++row) {
            if (textOf(model).count(model.at(row).content) == 1)
                before.insert(model.at(row).content, model.index(row));
        }
        QList<Named> rows;
        for (const QChar letter : std::as_const(letters))
            rows.append(Named{{letter}});
        model.setRows(rows);
        ASSERT_EQ(textOf(model), letters);
        for (auto row = before.cbegin(); row != before.cend(); ++row) {
            if (letters.contains(row.key()))
                ASSERT_EQ(row.value().data(content), row.key()) << "among " << letters.toStdString();
            else
                ASSERT_FALSE(row.value().isValid());
        }
    }
}
