import QtQuick

/// Turns while it is visible.
Icon {
    id: spinner

    name: "spinner"
    size: 20
    smooth: true

    RotationAnimation on rotation {
        running: spinner.visible
        loops: Animation.Infinite
        from: 0
        to: 360
        duration: 900
    }
}
