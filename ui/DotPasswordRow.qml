pragma ComponentBehavior: Bound

import QtQuick

/// Six dots that mirror how many digits were typed into the field hidden behind them. `text` is what the screen holds;
/// every edit is handed over with `edited`.
FocusScope {
    id: row

    property string text
    property string placeholder
    /// Whether each of the six dots is lit.
    required property list<bool> lit
    property bool deep: false
    readonly property Tones tones: Theme.tones(deep)

    signal edited(string value)

    function showText() {
        if (field.text !== row.text)
            field.text = row.text
    }

    implicitWidth: Math.min(6 * 48, parent ? parent.width : 6 * 48)
    implicitHeight: Theme.buttonHeight
    onTextChanged: showText()
    // The row speaks for its field: Qt gives a password field no name, and a field that is none would speak its text.
    Accessible.role: Accessible.EditableText
    Accessible.name: placeholder
    Accessible.focusable: true
    Accessible.focused: field.activeFocus

    TextInput {
        id: field
        anchors.fill: parent
        focus: true
        activeFocusOnTab: true
        echoMode: TextInput.Password
        inputMethodHints: Qt.ImhDigitsOnly | Qt.ImhSensitiveData | Qt.ImhNoPredictiveText
        cursorDelegate: Item {}
        Accessible.ignored: true
        onTextEdited: {
            row.edited(text)
            row.showText()
        }
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
    TapHandler {
        onTapped: field.forceActiveFocus()
    }
}
