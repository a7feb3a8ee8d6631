import QtQuick
import Zorvane.Ui

/// Shows the view that a dialog names.
Loader {
    id: loader

    required property KRDialog dialog

    focus: true
    Component.onCompleted: setSource(ViewFinder.view(dialog.view), { dialog: dialog })
}
