import QtQuick

/// A stack that slides up over the window.
NavigationStack {
    id: stack

    property bool inPlace: false

    signal settled
    signal gone

    ready: inPlace
    Component.onCompleted: slide.start()
    Component.onDestruction: if (inPlace) gone()

    NumberAnimation {
        id: slide
        target: stack
        property: "y"
        from: stack.height
        to: 0
        duration: Theme.motion
        easing.type: Easing.OutCubic
        onFinished: {
            stack.inPlace = true
            stack.settled()
        }
    }
}
