import QtQuick

/// Covers the window while something is asked for; nothing under it can be reached but the way back: what is asked for
/// may never end.
FocusScope {
    id: indicator

    required property string status
    /// Whether a button leads out.
    property bool wayOut: false

    signal back

    Accessible.role: Accessible.ProgressBar
    Accessible.name: status
    Accessible.description: wayOut ? backButton.text : ""
    Keys.onPressed: event => {
        event.accepted = true
        if (event.key === Qt.Key_Tab && wayOut)
            backButton.forceActiveFocus(Qt.TabFocusReason)
        else if ((event.key === Qt.Key_Escape || event.key === Qt.Key_Back) && !event.isAutoRepeat)
            back()
    }

    PointerShield {
        anchors.fill: parent
    }
    // What takes longer shows that nothing under it can be used.
    Rectangle {
        anchors.fill: parent
        color: Theme.scrim

        SequentialAnimation on opacity {
            running: indicator.visible

            PropertyAction { value: 0 }
            PauseAnimation { duration: Theme.motionPatience }
            NumberAnimation { to: 0.6; duration: Theme.motion }
        }
    }
    Rectangle {
        anchors.centerIn: parent
        width: Math.max(112, column.implicitWidth + 2 * Theme.spacingHuge)
        height: column.height + 2 * Theme.spacingLarge
        radius: Theme.radiusLarge
        color: Theme.indicatorPanel

        Column {
            id: column
            anchors.centerIn: parent
            spacing: Theme.spacing

            Spinner {
                anchors.horizontalCenter: parent.horizontalCenter
                size: 32
            }
            PlainText {
                anchors.horizontalCenter: parent.horizontalCenter
                text: indicator.status
                font: Theme.label
                color: Theme.textOnAccent
            }
            SecondaryButton {
                id: backButton
                anchors.horizontalCenter: parent.horizontalCenter
                visible: indicator.wayOut
                onVisibleChanged: focus = false
                small: true
                deep: true
                text: "返回"
                onClicked: indicator.back()
            }
        }
    }
}
