import QtQuick

/// The last row of a list that has more.
Tappable {
    id: row

    property bool loading: false

    height: visible ? Theme.rowHeight : 0
    available: !loading
    ringInset: 2
    text: loading ? "加载中..." : "加载更多"
    contentItem: PlainText {
        text: row.text
        font: Theme.label
        color: row.tones.textSecondary
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
}
