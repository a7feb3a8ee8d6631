pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

/// Six dots that mirror how many digits were typed into the field hidden behind them. `digits` is what the screen holds;
/// every edit is handed over with `edited`. The field itself holds nothing and says how many there are.
FocusScope {
    id: row

    property string digits
    /// How many digits there are, for those who do not see the dots.
    required property string countText
    property string placeholder
    /// Whether each of the six dots is lit.
    required property list<bool> lit
    property bool deep: false
    readonly property Tones tones: Theme.tones(deep)

    signal edited(string value)

    implicitWidth: Math.min(6 * 48, parent ? parent.width : 6 * 48)
    implicitHeight: Theme.buttonHeight

    DigitField {
        id: field
        anchors.fill: parent
        focus: true
        Accessible.role: Accessible.EditableText
        Accessible.name: row.placeholder
        Accessible.description: row.countText
        onTyped: text => row.edited(row.digits + text)
        onErased: row.edited(row.digits.slice(0, -1))
    }
    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: row.tones.surface
        border.width: field.activeFocus ? Theme.focusRingWidth : Theme.hairlineWidth
        border.color: field.activeFocus ? row.tones.focusRing : row.tones.hairline
    }
    Repeater {
        model: 6
        Item {
            id: cell

            required property int index

            x: index * width
            width: row.width / 6
            height: row.height

            Rectangle {
                anchors.centerIn: parent
                width: 14
                height: 14
                radius: 7
                visible: row.lit[cell.index] ?? false
                color: row.tones.textPrimary
            }
            Rectangle {
                y: Theme.focusRingWidth
                width: Theme.hairlineWidth
                height: parent.height - 2 * y
                visible: cell.index > 0
                color: row.tones.hairline
            }
        }
    }
}
