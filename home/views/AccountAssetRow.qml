import QtQuick
import Zorvane.Ui

/// A figure of the balance sheet. The names end in one line, whatever blanks they begin with.
Item {
    id: row

    required property string title
    required property string value
    required property bool hasInfo

    signal infoClicked

    implicitHeight: Theme.rowHeight
    Accessible.role: Accessible.StaticText
    Accessible.name: title + " " + value
    Accessible.ignored: hasInfo

    Rectangle {
        anchors.fill: parent
        color: door.pressed ? Theme.surfacePressed : Theme.surface
        Hairline {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: Theme.margin }
        }
    }
    Tappable {
        id: door
        anchors.fill: parent
        visible: row.hasInfo
        ringInset: 2
        text: row.title + " " + row.value
        onClicked: row.infoClicked()
    }
    Item {
        anchors.fill: parent

        TextMetrics {
            id: widest
            font: Theme.body
            text: "可用余额"
        }
        PlainText {
            id: name
            anchors { right: parent.left; rightMargin: -Theme.margin - widest.advanceWidth; verticalCenter: parent.verticalCenter }
            text: row.title
            font: Theme.body
            color: Theme.textPrimary
        }
        Icon {
            id: info
            anchors { left: name.right; leftMargin: Theme.spacingSmall; verticalCenter: parent.verticalCenter }
            visible: row.hasInfo
            name: "info"
            size: 18
        }
        AmountText {
            anchors { left: info.right; right: parent.right; verticalCenter: parent.verticalCenter }
            anchors { leftMargin: Theme.spacing; rightMargin: Theme.margin }
            text: row.value
            font: Theme.bodyBold
            horizontalAlignment: Text.AlignRight
            elide: Text.ElideRight
        }
    }
}
