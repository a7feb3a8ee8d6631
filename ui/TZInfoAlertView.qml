import QtQuick
import Zorvane.Ui

/// A question or a piece of news, with one or two answers.
DialogFrame {
    id: alert

    required dialog
    readonly property TZInfoAlertDialog info: dialog as TZInfoAlertDialog

    name: info.titleText
    description: info.ensureText

    Item {
        width: parent.width
        height: texts.height + 2 * Theme.spacingHuge

        Column {
            id: texts
            anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.spacingLarge }
            anchors.topMargin: Theme.spacingHuge
            spacing: Theme.spacingSmall
            SpokenText {
                width: parent.width
                text: alert.info.titleText
                font: Theme.title
                color: Theme.textPrimary
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
            SpokenText {
                width: parent.width
                visible: text !== ""
                text: alert.info.ensureText
                font: Theme.body
                color: Theme.textSecondary
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
        }
    }
    footer: [
        Hairline {
            width: parent.width
        },
        Row {
            width: parent.width
            height: Theme.rowHeight

            DialogButton {
                id: left
                width: visible ? parent.width / 2 : 0
                visible: text !== ""
                strong: false
                text: alert.info.leftTitle
                onClicked: alert.info.leftBtnClick()
            }
            Rectangle {
                width: left.visible ? Theme.hairlineWidth : 0
                height: parent.height
                color: Theme.hairline
            }
            DialogButton {
                width: parent.width - x
                focus: true
                text: alert.info.rightTitle
                // Read with the focus when the dialog comes.
                Accessible.description: alert.info.ensureText
                onClicked: alert.info.rightBtnClick()
            }
        }
    ]
}
