import QtQuick
import Zorvane.Ui

/// Shows the root of the window: the guide, or the side menu. One that replaces another fades in.
ViewHost {
    id: host

    required property QtObject root
    property bool complete: false
    readonly property bool fading: arrival.running

    function showRoot() {
        if (host.view)
            arrival.restart()
        const old = host.view as SideMenuFrame
        if (old)
            old.close()
        const guide = host.root as KRBaseController
        if (guide)
            host.show(ViewFinder.screen(guide), { controller: guide })
        else if (host.root)
            host.show(Qt.resolvedUrl("SideMenuFrame.qml"), { sideMenu: host.root })
    }

    onRootChanged: if (complete) showRoot()
    Component.onCompleted: {
        complete = true
        showRoot()
    }

    NumberAnimation {
        id: arrival
        target: host
        property: "opacity"
        from: 0
        to: 1
        duration: Theme.motion
    }
}
