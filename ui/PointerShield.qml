import QtQuick

/// Keeps the pointer from everything under it.
MouseArea {
    hoverEnabled: true
    preventStealing: true
    onWheel: wheel => wheel.accepted = true
}
