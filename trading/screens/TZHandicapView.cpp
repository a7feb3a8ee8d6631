#include "trading/screens/TZHandicapView.h"

#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/util/Service.h"
#include "core/util/Text.h"

#include <algorithm>

namespace {
const QString noFigure = QStringLiteral("--");

int trendOf(const QString &price, double previousClose)
{
    const double yuan = doubleValue(price);
    if (yuan <= 0 || previousClose <= 0)
        return 0;
    return (yuan > previousClose) - (yuan < previousClose);
}

HandicapRow rowOf(const TZHandicapModel &level, const TZHandicapView::Scale &scale)
{
    const bool hasPrice = !Service::whetherAnEmptyString(level.price);
    const double volume = std::max(doubleValue(level.volume), 0.0);
    return {level.title,
            hasPrice ? level.price : noFigure,
            Service::whetherAnEmptyString(level.volume) ? noFigure : level.volume,
            scale.deepestVolume > 0 ? volume / scale.deepestVolume : 0,
            trendOf(level.price, scale.previousClose),
            hasPrice};
}
} // namespace

double TZHandicapView::deepestVolume(const QList<TZHandicapModel> &levels)
{
    double deepest = 0;
    for (const TZHandicapModel &level : levels)
        deepest = std::max(deepest, doubleValue(level.volume));
    return deepest;
}

void TZHandicapView::setLevels(const QList<TZHandicapModel> &levels, const Scale &scale)
{
    shownLevels = levels;
    QList<HandicapRow> rows;
    rows.reserve(levels.size());
    for (const TZHandicapModel &level : levels)
        rows.append(rowOf(level, scale));
    shownRows.setRows(std::move(rows));
}

void TZHandicapView::selectHandicap(int row)
{
    const QString price = shownLevels.value(row).price;
    if (Service::whetherAnEmptyString(price))
        return;
    Q_EMIT aboutToSelect();
    Platform::current().notifications.post(priceSelectNotification,
                                           QVariantMap{{QStringLiteral("price"), price}});
}
