import QtQuick

/// Covers the window while something is asked for; nothing under it can be reached but the way back: what is asked for
/// may never end.
FocusScope {
    id: indicator

    required property string status

    signal back

    Accessible.role: Accessible.Indicator
    Accessible.name: status
    Keys.onPressed: event => {
        event.accepted = true
        if ((event.key === Qt.Key_Escape || event.key === Qt.Key_Back) && !event.isAutoRepeat)
            back()
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        preventStealing: true
        onWheel: wheel => wheel.accepted = true
    }
    Rectangle {
        anchors.centerIn: parent
        width: Math.max(112, label.implicitWidth + 2 * Theme.spacingHuge)
        height: 104
        radius: Theme.radiusLarge
        color: Theme.indicatorPanel

        Spinner {
            anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: 22 }
            size: 32
        }
        Text {
            id: label
            anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: Theme.spacingLarge }
            text: indicator.status
            font: Theme.label
            color: Theme.textOnAccent
            Accessible.ignored: true
        }
    }
}
