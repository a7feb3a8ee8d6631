import QtQuick
import Zorvane.Ui

/// A line of a detail; what says "卖出" is green.
FormRow {
    required property bool isSell

    required label
    required value
    implicitHeight: Theme.detailRowHeight
    deep: true
    valueColour: isSell ? Theme.fall : tones.textPrimary
}
