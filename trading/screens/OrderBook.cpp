#include "trading/screens/OrderBook.h"

#include "core/util/Service.h"
#include "core/util/Text.h"

namespace {
const QString buySide = QStringLiteral("买");
const QString sellSide = QStringLiteral("卖");

QStringList numbered(const QString &side)
{
    QStringList titles;
    for (int level = 1; level <= OrderBook::depth; ++level)
        titles.append(side + QString::number(level));
    return titles;
}

TZHandicapModel levelAt(const QVariantList &pankou, int index, const QString &side)
{
    static const QStringList buyTitles = numbered(buySide);
    static const QStringList sellTitles = numbered(sellSide);
    static const QString price = QStringLiteral("price");
    static const QString volume = QStringLiteral("volume");
    const QVariantMap level = index < pankou.size() ? pankou.at(index).toMap() : QVariantMap();
    const QStringList &titles = side == buySide ? buyTitles : sellTitles;
    return {titles.at(index), textForm(level.value(price)), textForm(level.value(volume))};
}
} // namespace

bool OrderBook::isQuote(const QVariantMap &data)
{
    const auto isArray = [&data](const QString &key) {
        return data.value(key).typeId() == QMetaType::QVariantList;
    };
    return isArray(QStringLiteral("buyPankou")) || isArray(QStringLiteral("sellPankou")) ||
           !Service::whetherAnEmptyString(textForm(data.value(QStringLiteral("match"))));
}

QList<TZHandicapModel> OrderBook::buyLevels(const QVariantList &pankou)
{
    QList<TZHandicapModel> levels;
    levels.reserve(depth);
    for (int row = 0; row < depth; ++row)
        levels.append(levelAt(pankou, row, buySide));
    return levels;
}

QList<TZHandicapModel> OrderBook::sellLevels(const QVariantList &pankou)
{
    QList<TZHandicapModel> levels;
    levels.reserve(depth);
    for (int row = 0; row < depth; ++row)
        levels.append(levelAt(pankou, row < 5 ? 4 - row : 14 - row, sellSide));
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
