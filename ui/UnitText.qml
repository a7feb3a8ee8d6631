import QtQuick
import Zorvane.Ui

/// A text with its unit in small type at its end.
Row {
    id: whole

    required property unitText value
    property font font: Theme.body
    property color color: Theme.textPrimary

    Accessible.role: Accessible.StaticText
    Accessible.name: figure.text + unit.text

    PlainText {
        id: figure
        text: whole.value.figure
        font: whole.font
        color: whole.color
    }
    PlainText {
        id: unit
        anchors.baseline: figure.baseline
        text: whole.value.unit
        font: Theme.unit
        color: whole.color
    }
}
