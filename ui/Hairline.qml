import QtQuick

/// A line between rows; anchor it or give it a width.
Rectangle {
    property bool deep: false

    implicitHeight: Theme.hairlineWidth
    height: Theme.hairlineWidth
    color: Theme.tones(deep).hairline
}
