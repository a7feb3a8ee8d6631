import QtQuick

/// A name with its value; with `chevron` it leads somewhere and can be tapped. Children are laid at the right end.
Item {
    id: row

    property bool deep: false
    property string label
    property string value
    property string picture
    property bool chevron: false
    property bool line: true
    property color labelColour: tones.textPrimary
    property color valueColour: tones.textSecondary
    default property alias trailing: trailingSlot.data

    readonly property string text: value === "" ? label : label + " " + value
    readonly property Tones tones: Theme.tones(deep)

    signal clicked

    implicitWidth: parent ? parent.width : 0
    implicitHeight: Theme.rowHeight
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: chevron

    Rectangle {
        anchors.fill: parent
        color: door.pressed ? row.tones.surfacePressed : row.tones.surface
        Hairline {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: Theme.margin }
            visible: row.line
            deep: row.deep
        }
    }
    Tappable {
        id: door
        anchors.fill: parent
        visible: row.chevron
        deep: row.deep
        ringInset: 2
        text: row.text
        onClicked: row.clicked()
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
            color: row.labelColour
            elide: Text.ElideRight
        }
        AmountText {
            anchors { left: labelText.right; right: trailingSlot.left; verticalCenter: parent.verticalCenter }
            anchors.leftMargin: Theme.spacing
            anchors.rightMargin: trailingSlot.width > 0 ? Theme.spacingSmall : row.chevron ? Theme.spacingTiny : 0
            text: row.value
            font: Theme.body
            color: row.valueColour
            horizontalAlignment: Text.AlignRight
            verticalAlignment: Text.AlignVCenter
            height: row.height
            elide: Text.ElideRight
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
