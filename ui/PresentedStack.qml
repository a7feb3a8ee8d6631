import QtQuick

/// A stack that slides up over the window, and down again when it is `leaving`.
NavigationStack {
    id: stack

    required property bool leaving
    /// Whether it covers what is under it.
    readonly property bool covers: inPlace && !leaving
    property bool inPlace: false
    readonly property bool travelling: slide.running

    signal gone

    ready: covers
    Component.onCompleted: slide.start()
    onLeavingChanged: {
        if (leaving)
            slide.restart()
    }

    NumberAnimation {
        id: slide
        target: stack
        property: "y"
        from: stack.leaving ? stack.y : stack.height
        to: stack.leaving ? stack.height : 0
        duration: Theme.motion
        easing.type: stack.leaving ? Easing.InCubic : Easing.OutCubic
        onFinished: {
            if (stack.leaving)
                stack.gone()
            else
                stack.inPlace = true
        }
    }
}
