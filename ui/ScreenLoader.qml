import QtQuick
import Zorvane.Ui

/// Shows the view of a screen, found by the name of its class.
Loader {
    id: loader

    required property KRBaseController controller

    function show() {
        setSource(ViewFinder.screen(controller), { controller: controller })
    }

    focus: true
    onControllerChanged: show()
    Component.onCompleted: show()
}
