import QtQuick
import Zorvane.Ui
import Zorvane.Home

/// The asset summary of a signed-in user.
Item {
    id: cell

    required property TZHomeViewController home
    readonly property homeHeader header: home.header

    implicitHeight: summary.height + custody.height + 2 * Theme.spacingHuge + Theme.spacing

    Rectangle {
        id: summary
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.margin }
        height: column.height + 2 * Theme.spacingHuge
        radius: Theme.radiusLarge
        color: Theme.deep.surface

        Column {
            id: column
            anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.spacingHuge }
            spacing: Theme.spacing

            Item {
                width: parent.width
                height: Theme.touchTarget

                Text {
                    anchors { left: parent.left; verticalCenter: parent.verticalCenter }
                    text: "总资产（元）"
                    font: Theme.body
                    color: Theme.deep.textSecondary
                }
                StatusBadge {
                    anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                    visible: text !== ""
                    text: cell.header.statusTitle
                    image: cell.header.statusImage
                    atRisk: cell.header.atRisk
                    onClicked: cell.home.seeDetailStatus(text)
                }
            }
            AmountText {
                width: parent.width
                deep: true
                text: cell.header.totalAsset
                font: Theme.display
            }
            Item {
                width: parent.width
                height: rate.height

                Text {
                    id: prefix
                    anchors { left: parent.left; verticalCenter: parent.verticalCenter }
                    text: cell.header.profitPrefix
                    font: Theme.body
                    color: Theme.profitLabel
                }
                AmountText {
                    anchors { left: prefix.right; right: rate.left; rightMargin: Theme.spacing }
                    anchors.verticalCenter: parent.verticalCenter
                    deep: true
                    trend: cell.header.rateTrend
                    text: cell.header.profit
                    font: Theme.bodyBold
                }
                Rectangle {
                    id: rate
                    anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                    width: rateText.implicitWidth + 2 * Theme.spacing
                    height: rateText.implicitHeight + Theme.spacingSmall
                    visible: rateText.text !== ""
                    radius: height / 2
                    color: Theme.deep.page

                    Text {
                        id: rateText
                        anchors.centerIn: parent
                        text: cell.header.rate
                        font: Theme.bodyBold
                        color: Theme.trend(cell.header.rateTrend, true)
                        Accessible.role: Accessible.StaticText
                        Accessible.name: text
                    }
                }
            }
            Hairline {
                width: parent.width
                deep: true
            }
            Row {
                width: parent.width

                StatTile {
                    width: parent.width / 2
                    deep: true
                    trend: cell.header.rateTrend
                    label: "浮动盈亏"
                    value: cell.header.midProfit
                }
                StatTile {
                    width: parent.width / 2
                    deep: true
                    trend: cell.header.rateTrend
                    label: "收益率"
                    value: cell.header.midRate
                    alignment: Text.AlignRight
                }
            }
        }
    }
    Row {
        id: custody
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: Theme.spacing }
        spacing: Theme.spacingTiny

        Icon {
            anchors.verticalCenter: parent.verticalCenter
            name: "home_custody"
            size: 16
        }
        Text {
            text: cell.home.custodyText
            font: Theme.label
            color: Theme.deep.textSecondary
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
