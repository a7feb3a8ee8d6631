import QtQuick
import Zorvane.Ui

/// Shows the root of the window: the guide, or the side menu.
Loader {
    id: loader

    required property QtObject root

    function show() {
        const guide = root as KRBaseController
        if (guide)
            setSource(ViewFinder.screen(guide), { controller: guide })
        else
            setSource("SideMenuFrame.qml", { sideMenu: root })
    }

    onRootChanged: show()
    Component.onCompleted: show()
}
