#include "trading/screens/OrderBook.h"

#include "core/util/Service.h"
#include "core/util/Text.h"

namespace {
TZHandicapModel levelAt(const QVariantList &pankou, int index, const QString &side)
{
    const QVariantMap level = pankou.value(index).toMap();
    return {side + QString::number(index + 1), textForm(level.value(QStringLiteral("price"))),
            textForm(level.value(QStringLiteral("volume")))};
}
} // namespace

bool OrderBook::isQuote(const QVariantMap &data)
{
    const auto isArray = [&data](const QString &key) {
        return data.value(key).typeId() == QMetaType::QVariantList;
    };
    return isArray(QStringLiteral("buyPankou")) || isArray(QStringLiteral("sellPankou")) ||
           !Service::whetherAnEmptyString(data.value(QStringLiteral("match")));
}

QList<TZHandicapModel> OrderBook::buyLevels(const QVariantList &pankou)
{
    QList<TZHandicapModel> levels;
    levels.reserve(depth);
    for (int row = 0; row < depth; ++row)
        levels.append(levelAt(pankou, row, QStringLiteral("买")));
    return levels;
}

QList<TZHandicapModel> OrderBook::sellLevels(const QVariantList &pankou)
{
    QList<TZHandicapModel> levels;
    levels.reserve(depth);
    for (int row = 0; row < depth; ++row)
        levels.append(levelAt(pankou, row < 5 ? 4 - row : 14 - row, QStringLiteral("卖")));
    return levels;
}

QList<TZHandicapModel> OrderBook::bestFirst(const QVariantList &pankou, const QString &side)
{
    QList<TZHandicapModel> levels;
    levels.reserve(depth);
    for (int row = 0; row < depth; ++row) {
        const TZHandicapModel level = levelAt(pankou, row, side);
        levels.append(doubleValue(level.price) > 0 ? level : TZHandicapModel{level.title, {}, {}});
    }
    return levels;
}
