import QtQuick
import Zorvane.Ui

/// Shows the view that a dialog names.
ViewHost {
    id: host

    required property KRDialog dialog

    Component.onCompleted: host.show(ViewFinder.view(dialog.view), { dialog: dialog })
}
