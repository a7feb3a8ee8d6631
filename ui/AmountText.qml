import QtQuick

/// Money or a quantity, in digits of equal width. Shrinks rather than clips when it is given a width.
PlainText {
    property bool deep: false
    /// 1 rise, 0 flat, -1 fall.
    property int trend: 0

    font: Theme.amount
    color: Theme.trend(trend, deep)
    fontSizeMode: Text.HorizontalFit
    verticalAlignment: Text.AlignVCenter
    minimumPixelSize: Theme.smallestText
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
