import QtQuick
import Zorvane.Ui
import Zorvane.Home

/// The asset summary of a signed-in user.
Item {
    id: cell

    required property TZHomeViewController home
    readonly property homeHeader header: home.header

    implicitHeight: hero.implicitHeight + mid.height + custody.height + 2 * Theme.spacing

    HomeHero {
        id: hero
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: mid.top }
        picture: "home_glow"
        title: cell.header.assetTitle
        amount: cell.header.totalAsset
        titleButton: IconButton {
            deep: true
            image: cell.home.amounts.hidden ? "eye_closed_deep" : "eye_open_deep"
            text: cell.home.amounts.title
            onClicked: cell.home.amounts.toggle()
        }

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(profitLine.implicitWidth + 2 * Theme.spacingLarge, parent.width)
            height: Math.max(profitLine.height + Theme.spacingSmall, Theme.scaled(36))
            radius: height / 2
            color: Theme.deep.surface

            Row {
                id: profitLine
                anchors.centerIn: parent
                spacing: Theme.spacing

                Row {
                    anchors.verticalCenter: parent.verticalCenter
                    Accessible.role: Accessible.StaticText
                    Accessible.name: prefix.text + profit.text

                    PlainText {
                        id: prefix
                        text: cell.header.profitPrefix
                        font: Theme.body
                        color: Theme.profitLabel
                    }
                    AmountText {
                        id: profit
                        width: Math.min(implicitWidth, cell.width / 2)
                        deep: true
                        trend: cell.header.profitTrend
                        text: cell.header.profit
                        font: Theme.bodyBold
                    }
                }
                SpokenText {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: text !== ""
                    text: cell.header.rate
                    font: Theme.bodyBold
                    color: Theme.trend(cell.header.rateTrend, true)
                }
            }
        }
        StatusBadge {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: text !== ""
            text: cell.header.statusTitle
            image: cell.header.statusImage
            atRisk: cell.header.atRisk
            onClicked: cell.home.seeDetailStatus(text)
        }
    }
    Rectangle {
        id: mid
        anchors { left: parent.left; right: parent.right; bottom: custody.top }
        anchors { leftMargin: Theme.margin; rightMargin: Theme.margin; bottomMargin: Theme.spacing }
        height: tiles.height + 2 * (Window.height < 700 ? Theme.spacing : Theme.spacingLarge)
        radius: Theme.radiusLarge
        color: Theme.deep.surface

        Row {
            id: tiles
            anchors { left: parent.left; right: parent.right; margins: Theme.spacingLarge }
            anchors.verticalCenter: parent.verticalCenter

            StatTile {
                width: parent.width * 0.6
                deep: true
                trend: cell.header.profitTrend
                label: "浮动盈亏"
                value: cell.header.midProfit
            }
            StatTile {
                width: parent.width * 0.4
                deep: true
                trend: cell.header.rateTrend
                label: "收益率"
                value: cell.header.midRate
            }
        }
    }
    Row {
        id: custody
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom }
        spacing: Theme.spacingTiny

        Icon {
            anchors.verticalCenter: parent.verticalCenter
            name: "home_custody"
            size: 16
        }
        SpokenText {
            text: cell.home.custodyText
            font: Theme.label
            color: Theme.deep.textSecondary
        }
    }
}
