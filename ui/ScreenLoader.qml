import QtQuick
import Zorvane.Ui

/// Shows the view of a screen, found by the name of its class.
ViewHost {
    id: host

    required property KRBaseController controller

    Component.onCompleted: host.show(ViewFinder.screen(controller), { controller: controller })
}
