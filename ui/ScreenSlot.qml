import QtQuick
import Zorvane.Ui

/// The place of one screen in a stack: slides in when it comes, out when it leaves, with the finger on a swipe from the
/// left edge.
FocusScope {
    id: slot

    required property int index
    required property KRBaseController controller
    required property bool leaving
    property bool animated: false
    /// The screen over this one.
    property ScreenSlot above
    /// 0 beyond the right edge, 1 in place.
    property real progress: 1
    readonly property bool sliding: movement.running || progress > 0 && progress < 1

    signal gone

    function slide(to: real) {
        movement.to = to
        movement.restart()
    }

    x: Math.round((1 - progress) * width - (above ? above.progress * width / 4 : 0))
    visible: !above || above.progress < 1
    onLeavingChanged: if (leaving) slide(0)
    // Decided once: a screen that came while its stack was covered is in place when the stack is seen again.
    Component.onCompleted: {
        if (leaving) {
            slide(0)
        } else if (animated && index > 0) {
            progress = 0
            slide(1)
        }
    }

    ScreenLoader {
        anchors.fill: parent
        controller: slot.controller
    }
    NumberAnimation {
        id: movement
        target: slot
        property: "progress"
        duration: Theme.motion
        easing.type: Easing.OutCubic
        onFinished: if (slot.leaving) slot.gone()
    }
    Item {
        width: Theme.spacingLarge
        height: parent.height

        DragHandler {
            enabled: slot.index > 0 && slot.controller.isNeedGesture && !slot.leaving
            target: null
            yAxis.enabled: false
            onActiveTranslationChanged: {
                if (active)
                    slot.progress = 1 - Math.max(0, Math.min(1, activeTranslation.x / slot.width))
            }
            onActiveChanged: {
                if (active) {
                    movement.stop()
                    return
                }
                if (slot.progress < 0.65)
                    slot.controller.backButtonClicked()
                if (!slot.leaving)
                    slot.slide(1)
            }
        }
    }
}
