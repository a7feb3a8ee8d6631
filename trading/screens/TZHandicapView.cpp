#include "trading/screens/TZHandicapView.h"

#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/util/Service.h"
#include "core/util/Text.h"
#include "trading/charts/StockChart.h"

#include <algorithm>

namespace {
const QString noFigure = QStringLiteral("--");

/// Whole as far as it fits beside a price: "12345", "129.6万", "1.2亿".
QString shortVolume(const QString &text, double volume)
{
    if (volume < 100'000)
        return text;
    const bool hundredMillions = volume >= 100'000'000;
    return QString::number(volume / (hundredMillions ? 100'000'000 : 10'000), 'f', 1) +
           (hundredMillions ? u'亿' : u'万');
}

HandicapRow rowOf(const TZHandicapModel &level, const TZHandicapView::Scale &scale)
{
    const double price = doubleValue(level.price);
    // A service fills the places of levels that nobody offers with zeros.
    const bool hasPrice = price > 0;
    const double volume = std::max(doubleValue(level.volume), 0.0);
    const bool hasVolume = hasPrice && !Service::whetherAnEmptyString(level.volume);
    return {level.title,
            hasPrice ? level.price : noFigure,
            hasVolume ? shortVolume(level.volume, volume) : noFigure,
            scale.deepestVolume > 0 ? volume / scale.deepestVolume : 0,
            hasPrice ? trendOf(price, scale.previousClose) : 0,
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
    Q_EMIT keyRowChanged();
}

bool TZHandicapView::isSelectable(int row) const
{
    return shownRows.rows().value(row).selectable;
}

int TZHandicapView::rowBeyond(int row, int step) const
{
    do
        row += step;
    while (row >= 0 && row < shownLevels.size() && !isSelectable(row));
    return row < shownLevels.size() ? row : -1;
}

int TZHandicapView::keyRow() const
{
    for (int distance = 0; distance < shownLevels.size(); ++distance) {
        for (const int row : {wantedKeyRow - distance, wantedKeyRow + distance}) {
            if (isSelectable(row))
                return row;
        }
    }
    return -1;
}

void TZHandicapView::setKeyRow(int row)
{
    wantedKeyRow = row;
    Q_EMIT keyRowChanged();
}

void TZHandicapView::selectHandicap(int row)
{
    if (!isSelectable(row))
        return;
    const QString price = shownLevels.at(row).price;
    Q_EMIT aboutToSelect();
    Platform::current().notifications.post(priceSelectNotification,
                                           QVariantMap{{QStringLiteral("price"), price}});
}
