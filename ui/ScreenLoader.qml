import QtQuick
import Zorvane.Ui

/// Shows the view of a screen, found by the name of its class; made once it is wanted.
ViewHost {
    id: host

    required property KRBaseController controller

    property bool wanted: true

    function showOnce() {
        if (wanted && !view)
            show(ViewFinder.screen(controller), { controller: controller })
    }

    onWantedChanged: showOnce()
    Component.onCompleted: showOnce()
}
