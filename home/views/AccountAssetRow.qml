import QtQuick
import Zorvane.Ui

/// A figure of the balance sheet. The names end in one line, whatever blanks they begin with.
Tappable {
    id: row

    required property string title
    required property string value
    required property bool hasInfo

    signal infoClicked

    implicitHeight: Theme.rowHeight
    leads: hasInfo
    ringInset: 2
    text: title + " " + value
    activeFocusOnTab: hasInfo
    focusPolicy: hasInfo ? Qt.TabFocus : Qt.NoFocus
    Accessible.role: hasInfo ? Accessible.Button : Accessible.StaticText
    onClicked: if (hasInfo) infoClicked()
    background: Rectangle {
        color: row.hasInfo && row.pressed ? row.tones.surfacePressed : row.tones.surface
        Hairline {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: Theme.margin }
        }
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
            color: row.tones.textPrimary
            Accessible.ignored: true
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
            Accessible.ignored: true
        }
    }
}
