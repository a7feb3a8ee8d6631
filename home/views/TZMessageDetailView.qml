pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Home

PageFrame {
    id: page

    required controller
    readonly property TZMessageDetailController message: controller as TZMessageDetailController

    colour: Theme.pageGray

    ContentList {
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: buttons.top }
        anchors.bottomMargin: Theme.spacing
        focus: true
        model: 0
        Accessible.role: Accessible.Pane
        Accessible.name: page.message.messageTitle
        Accessible.description: page.message.content

        headerContent: Item {
            height: card.height + 2 * Theme.margin

            Rectangle {
                id: card
                x: Theme.margin
                y: Theme.margin
                width: parent.width - 2 * Theme.margin
                height: column.height + 2 * Theme.spacingLarge
                radius: Theme.radiusLarge
                color: Theme.surface

                Column {
                    id: column
                    anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.spacingLarge }
                    spacing: Theme.spacing

                    Row {
                        width: parent.width
                        spacing: Theme.spacing

                        Icon {
                            id: icon
                            name: "message_detail"
                            size: 40
                        }
                        Column {
                            width: parent.width - icon.width - Theme.spacing
                            spacing: Theme.spacingTiny

                            PlainText {
                                width: parent.width
                                text: page.message.messageTitle
                                textFormat: Text.PlainText
                                font: Theme.title
                                color: Theme.textPrimary
                                wrapMode: Text.Wrap
                                Accessible.role: Accessible.Heading
                                Accessible.name: text
                            }
                            SpokenText {
                                width: parent.width
                                text: page.message.time
                                textFormat: Text.PlainText
                                font: Theme.label
                                color: Theme.textSecondary
                            }
                        }
                    }
                    Hairline {
                        width: parent.width
                    }
                    SpokenText {
                        width: parent.width
                        text: page.message.content
                        textFormat: Text.PlainText
                        font: Theme.body
                        color: Theme.textPrimary
                        lineHeight: 1.5
                        wrapMode: Text.Wrap
                    }
                }
            }
        }
    }
    Row {
        id: buttons
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Theme.margin }
        spacing: Theme.spacing

        SecondaryButton {
            id: shareButton
            width: visible ? (buttons.width - buttons.spacing) / 2 : 0
            visible: page.message.shareable
            text: "分享"
            onClicked: page.message.shareBtnClick()
        }
        PrimaryButton {
            width: shareButton.visible ? shareButton.width : buttons.width
            fill: Theme.toHome
            font: Theme.badge
            text: page.message.homeTitle
            onClicked: page.message.backToHome()
        }
    }
}
