import QtQuick
import Zorvane.Ui

/// Shows the view that a dialog names. One that is `leaving` fades out, and lets no tap through until it has gone.
ViewHost {
    id: host

    required property KRDialog dialog
    required property bool leaving
    /// Whether nothing covers it. The shield holds also when something does.
    property bool inFront: true

    signal gone

    onLeavingChanged: if (leaving) fade.start()
    Component.onCompleted: host.show(ViewFinder.view(dialog.view), { dialog: dialog })

    NumberAnimation {
        id: fade
        target: host
        property: "opacity"
        to: 0
        duration: Theme.motion
        onFinished: host.gone()
    }
    Binding {
        target: host.view
        property: "enabled"
        value: host.inFront
    }
    PointerShield {
        z: 1
        anchors.fill: parent
        visible: host.leaving
    }
}
