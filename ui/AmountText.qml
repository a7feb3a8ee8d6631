import QtQuick

/// Money or a quantity, in digits of equal width. In the width it is given it shrinks, and says when digits are missing.
PlainText {
    property bool deep: false
    /// 1 rise, 0 flat, -1 fall.
    property int trend: 0
    /// No longer to be relied on: without the colour of its trend.
    property bool stale: false

    font: Theme.amount
    color: stale ? Theme.tones(deep).textSecondary : Theme.trend(trend, deep)
    fontSizeMode: Text.HorizontalFit
    verticalAlignment: Text.AlignVCenter
    minimumPixelSize: Theme.smallestFigure
    elide: Text.ElideRight
}
