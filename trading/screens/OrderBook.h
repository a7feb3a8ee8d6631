#pragma once

#include "trading/api/TZHandicapModel.h"

#include <QList>
#include <QVariant>

/// The levels of a quote's "buyPankou" or "sellPankou", always ten in the order of their rows, the first one
/// on top. Where the service sent fewer, or something else, a level has empty texts.
namespace OrderBook {

inline constexpr int depth = 10;

/// Whether an answer's "data" brought news: a latest price, or a side of the book.
bool isQuote(const QVariantMap &data);

/// 买1 to 买10.
QList<TZHandicapModel> buyLevels(const QVariantList &pankou);
/// Kept on purpose: two blocks of five, each with its highest level first: 卖5 to 卖1, then 卖10 to 卖6.
QList<TZHandicapModel> sellLevels(const QVariantList &pankou);
/// The row of 卖1 in it.
inline constexpr int bestSellRow = 4;
/// A side for boards that show its best level on top; what is no level (no price above 0) has empty texts.
QList<TZHandicapModel> bestFirst(const QVariantList &pankou, const QString &side);

} // namespace OrderBook
