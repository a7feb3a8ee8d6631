import QtQuick

/// A figure under its name, for grids of figures.
Column {
    id: tile

    property string label
    property string value
    property bool deep: false
    property int trend: 0
    property bool stale: false
    property int alignment: Text.AlignLeft

    spacing: Theme.spacingTiny
    Accessible.role: Accessible.StaticText
    Accessible.name: label + " " + value

    PlainText {
        width: tile.width
        text: tile.label
        font: Theme.caption
        color: Theme.tones(tile.deep).textSecondary
        horizontalAlignment: tile.alignment
        elide: Text.ElideRight
    }
    AmountText {
        width: tile.width
        text: tile.value
        font: Theme.bodyBold
        deep: tile.deep
        trend: tile.trend
        stale: tile.stale
        horizontalAlignment: tile.alignment
    }
}
