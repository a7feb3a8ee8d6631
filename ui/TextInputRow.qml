import QtQuick
import QtQuick.Templates as T

/// One line to type into. `text` is what the screen holds: every edit is handed over with `edited`, and the field then
/// shows what the screen made of it (`onEdited: value => controller.cell = value`). Children are laid at the right end.
FocusScope {
    id: row

    property string text
    property string placeholder
    property string label
    /// What is said besides its placeholder.
    property string description
    property string icon
    property bool deep: false
    property bool line: true
    property bool clearButton: true
    property alias inputMethodHints: field.inputMethodHints
    property alias maximumLength: field.maximumLength
    property alias readOnly: field.readOnly
    property alias field: field
    /// Whether an input method is still making up what was typed.
    readonly property bool composing: field.preeditText !== ""
    default property alias trailing: trailingSlot.data
    readonly property Tones tones: Theme.tones(deep)

    signal edited(string value)
    signal accepted

    function showText() {
        if (field.text === row.text)
            return
        const atEnd = field.cursorPosition === field.length
        const position = field.cursorPosition
        field.text = row.text
        field.cursorPosition = atEnd ? field.length : Math.min(position, field.length)
    }

    implicitWidth: parent ? parent.width : 0
    implicitHeight: Theme.rowHeight
    onTextChanged: showText()

    Rectangle {
        anchors.fill: parent
        color: row.tones.surface
    }
    Icon {
        id: iconImage
        anchors { left: parent.left; leftMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        visible: row.icon !== ""
        name: row.icon
    }
    PlainText {
        id: labelText
        anchors { left: row.icon === "" ? parent.left : iconImage.right; verticalCenter: parent.verticalCenter }
        anchors.leftMargin: row.icon === "" ? Theme.margin : Theme.spacing
        width: text === "" ? 0 : Math.max(72, implicitWidth)
        text: row.label
        font: Theme.body
        color: row.tones.textPrimary
    }
    T.TextField {
        id: field
        anchors { left: labelText.right; right: clear.left; top: parent.top; bottom: parent.bottom }
        anchors.leftMargin: row.label === "" ? 0 : Theme.spacingSmall
        focus: true
        activeFocusOnTab: true
        font: Theme.body
        color: row.tones.textPrimary
        placeholderTextColor: row.tones.placeholder
        selectionColor: Theme.accent
        selectedTextColor: Theme.textOnAccent
        selectByMouse: true
        verticalAlignment: TextInput.AlignVCenter
        leftPadding: 0
        rightPadding: Theme.spacingSmall
        clip: true
        Accessible.role: Accessible.EditableText
        Accessible.name: row.placeholder
        Accessible.description: row.description
        onTextEdited: {
            // A paste may bring line breaks, which one line does not show.
            row.edited(text.replace(/[\r\n]/g, ""))
            row.showText()
        }
        // A key that is held submits once.
        Keys.onReturnPressed: event => event.accepted = event.isAutoRepeat
        Keys.onEnterPressed: event => event.accepted = event.isAutoRepeat
        onAccepted: row.accepted()

        PlainText {
            anchors { fill: parent; rightMargin: Theme.spacingSmall }
            visible: field.length === 0 && !row.composing
            text: row.placeholder
            font: field.font
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Theme.smallestText
            color: row.tones.placeholder
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
        }
    }
    IconButton {
        id: clear
        anchors { right: trailingSlot.left; verticalCenter: parent.verticalCenter }
        width: visible ? Theme.touchTarget : 0
        visible: row.clearButton && field.activeFocus && field.length > 0 && !field.readOnly
        activeFocusOnTab: false
        image: "field_clear"
        size: 18
        text: "清除"
        onClicked: {
            row.edited("")
            row.showText()
        }
    }
    Row {
        id: trailingSlot
        anchors { right: parent.right; rightMargin: Theme.spacingSmall; verticalCenter: parent.verticalCenter }
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        anchors.leftMargin: field.activeFocus ? 0 : Theme.margin
        visible: row.line || field.activeFocus
        height: field.activeFocus ? Theme.focusRingWidth : Theme.hairlineWidth
        color: field.activeFocus ? row.tones.focusRing : row.tones.hairline
    }
}
