import QtQuick

/// A name with its value; with `chevron` it leads somewhere and can be tapped. Children are laid at the right end.
Tappable {
    id: row

    property string label
    property string value
    property string picture
    property bool chevron: false
    property bool line: true
    property color labelColour: tones.textPrimary
    property color valueColour: tones.textSecondary
    default property alias trailing: trailingSlot.data

    implicitWidth: parent ? parent.width : 0
    implicitHeight: Theme.rowHeight
    leads: chevron
    hoverEnabled: false
    ringInset: 2
    text: value === "" ? label : label + " " + value
    activeFocusOnTab: chevron || activeFocus
    focusPolicy: chevron ? Qt.TabFocus : Qt.NoFocus
    Accessible.role: chevron ? Accessible.Button : Accessible.StaticText
    background: Rectangle {
        color: row.chevron && row.pressed ? row.tones.surfacePressed : row.tones.surface
        Hairline {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: Theme.margin }
            visible: row.line
            deep: row.deep
        }
    }
    Item {
        anchors.fill: parent

        Icon {
            id: iconImage
            anchors { left: parent.left; leftMargin: Theme.margin; verticalCenter: parent.verticalCenter }
            visible: row.picture !== ""
            name: row.picture
        }
        PlainText {
            id: labelText
            anchors { left: row.picture === "" ? parent.left : iconImage.right; verticalCenter: parent.verticalCenter }
            anchors.leftMargin: row.picture === "" ? Theme.margin : Theme.spacing
            width: Math.min(implicitWidth, row.value === "" ? arrow.x - x : row.width * 0.6)
            text: row.label
            font: Theme.body
            color: row.enabled ? row.labelColour : row.tones.disabled
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        AmountText {
            anchors { left: labelText.right; right: trailingSlot.left; verticalCenter: parent.verticalCenter }
            anchors.leftMargin: Theme.spacing
            anchors.rightMargin: trailingSlot.width > 0 ? Theme.spacingSmall : row.chevron ? Theme.spacingTiny : 0
            text: row.value
            font: Theme.body
            color: row.enabled ? row.valueColour : row.tones.disabled
            horizontalAlignment: Text.AlignRight
            verticalAlignment: Text.AlignVCenter
            height: row.height
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        Row {
            id: trailingSlot
            anchors { right: arrow.left; verticalCenter: parent.verticalCenter }
        }
        Icon {
            id: arrow
            anchors { right: parent.right; rightMargin: Theme.spacing; verticalCenter: parent.verticalCenter }
            width: row.chevron ? size : Theme.spacingTiny
            visible: row.chevron
            size: 16
            name: row.deep ? "chevron_deep" : "chevron"
        }
    }
}
