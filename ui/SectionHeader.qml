import QtQuick

/// The name of a group of rows, with an optional second text at the right.
Item {
    id: header

    property string text
    property string trailing
    property bool deep: false
    property int trailingTrend: 0

    implicitWidth: parent ? parent.width : 0
    implicitHeight: Theme.scaled(36)
    Accessible.role: Accessible.Heading
    Accessible.name: trailing === "" ? text : text + " " + trailing

    PlainText {
        anchors { left: parent.left; right: trailingText.left; leftMargin: Theme.margin; rightMargin: Theme.spacing }
        anchors.verticalCenter: parent.verticalCenter
        text: header.text
        font: Theme.label
        color: Theme.tones(header.deep).textSecondary
        elide: Text.ElideRight
    }
    // A trend is not read as well on the page itself.
    Rectangle {
        anchors { fill: trailingText; leftMargin: -Theme.spacing; rightMargin: -Theme.spacing }
        anchors { topMargin: -Theme.spacingTiny; bottomMargin: -Theme.spacingTiny }
        visible: header.trailingTrend !== 0
        radius: height / 2
        color: Theme.tones(header.deep).surface
    }
    PlainText {
        id: trailingText
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        anchors.rightMargin: header.trailingTrend === 0 ? Theme.margin : Theme.margin + Theme.spacing
        text: header.trailing
        font: Theme.label
        color: header.trailingTrend === 0 ? Theme.tones(header.deep).textSecondary
                                          : Theme.trend(header.trailingTrend, header.deep)
    }
}
