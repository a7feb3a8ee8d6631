import QtQuick
import Zorvane.Ui

/// The button of a step. It can be pressed while it is grey: the screen then says what is missing.
PrimaryButton {
    property bool lit: true

    width: parent ? parent.width : 0
    deep: true
    fill: lit ? Theme.accent : Theme.unlitButton
}
