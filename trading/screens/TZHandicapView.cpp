#include "trading/screens/TZHandicapView.h"

#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/util/Service.h"
#include "core/util/Text.h"
#include "trading/charts/StockChart.h"

#include <algorithm>

namespace {
const QString noFigure = QStringLiteral("--");

HandicapRow rowOf(const TZHandicapModel &level, const TZHandicapView::Scale &scale)
{
    const bool hasPrice = !Service::whetherAnEmptyString(level.price);
    const double volume = std::max(doubleValue(level.volume), 0.0);
    return {level.title,
            hasPrice ? level.price : noFigure,
            Service::whetherAnEmptyString(level.volume) ? noFigure : level.volume,
            scale.deepestVolume > 0 ? volume / scale.deepestVolume : 0,
            trendOf(doubleValue(level.price), scale.previousClose),
            hasPrice};
}
} // namespace

TZHandicapView::Scale TZHandicapView::Scale::of(const QList<TZHandicapModel> &buyLevels,
                                                const QList<TZHandicapModel> &sellLevels,
                                                double previousClose)
{
    Scale scale{0, previousClose};
    for (const QList<TZHandicapModel> *const side : {&buyLevels, &sellLevels}) {
        for (const TZHandicapModel &level : *side)
            scale.deepestVolume = std::max(scale.deepestVolume, doubleValue(level.volume));
    }
    return scale;
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
