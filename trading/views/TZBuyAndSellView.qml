pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

/// The stock on top, below it the form with the order book at its side, the submit button at the bottom.
PageFrame {
    id: page

    readonly property TZBuyAndSellController screen: controller as TZBuyAndSellController
    readonly property real bookWidth: Math.min(260, Math.floor(width * (largeText ? 0.5 : 0.46)))
    readonly property bool largeText: Theme.textScale > 1
    readonly property real levelHeight: Math.floor((book.height - 2 * Theme.spacing) / 20)

    FormRow {
        id: stockRow
        width: parent.width
        deep: true
        picture: chevron ? "search" : ""
        label: page.screen.stockText === "" ? page.screen.stockPlaceholder : page.screen.stockText
        labelColour: page.screen.stockText === "" ? tones.placeholder : tones.textPrimary
        chevron: page.screen.canGotoStockSelect
        onClicked: page.screen.gotoSelectStock()
    }
    PageFlickable {
        id: scroll
        anchors { left: parent.left; right: book.left; top: stockRow.bottom; bottom: submitButton.top }
        anchors.bottomMargin: Theme.spacingSmall
        contentHeight: Math.max(height, form.height)
        onDragStarted: page.screen.scrollViewWillBeginDragging()

        TapHandler {
            onTapped: page.screen.scrollViewWillBeginDragging()
        }
        Column {
            id: form
            width: parent.width

            TextInputRow {
                deep: true
                clearButton: false
                text: page.screen.price
                placeholder: page.screen.pricePlaceholder
                inputMethodHints: Qt.ImhFormattedNumbersOnly
                onEdited: value => page.screen.price = value
                onAccepted: page.screen.submit()

                AmountText {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: !page.largeText
                    deep: true
                    text: page.screen.currentPriceText
                    font: Theme.caption
                    color: Theme.deep.textSecondary
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }
            // Large text leaves no room for it in the field.
            AmountText {
                x: Theme.margin
                width: parent.width - 2 * x
                height: Theme.touchTarget
                visible: page.largeText
                deep: true
                text: page.screen.currentPriceText
                font: Theme.caption
                color: Theme.deep.textSecondary
                Accessible.ignored: text === ""
            }
            TextInputRow {
                deep: true
                clearButton: false
                text: page.screen.quantity
                placeholder: page.screen.quantityPlaceholder
                inputMethodHints: Qt.ImhDigitsOnly
                onEdited: value => page.screen.quantity = value
                onAccepted: page.screen.submit()
            }
            Item {
                width: parent.width
                height: Theme.spacing
            }
            Row {
                id: fractions
                readonly property real buttonWidth: (form.width - Theme.margin - Theme.spacing - 2 * Theme.spacingSmall) / 3
                x: Theme.margin
                spacing: Theme.spacingSmall

                Repeater {
                    model: page.screen.fractionTitles

                    FractionButton {
                        required property int index
                        required property string modelData

                        width: fractions.buttonWidth
                        deep: true
                        text: modelData
                        selected: page.screen.selectedFraction === index
                        onClicked: page.screen.selectFraction(index)
                    }
                }
            }
            AmountText {
                width: parent.width - Theme.spacing
                height: Theme.rowHeight - Theme.spacing
                deep: true
                text: page.screen.countText
                font: Theme.label
                color: Theme.deep.textSecondary
                verticalAlignment: Text.AlignVCenter
                Accessible.role: Accessible.StaticText
                Accessible.name: text.trim()
                Accessible.ignored: text === ""
            }
        }
    }
    Item {
        id: bookTitle
        anchors { left: book.left; right: book.right; top: stockRow.bottom }
        height: Theme.scaled(36)

        // The age finds room within the title: levels never move below a finger.
        SectionHeader {
            width: parent.width
            height: parent.height - (quoteAge.visible ? quoteAge.height - Theme.spacingTiny : 0)
            deep: true
            text: "level2 盘口"
        }
        QuoteAgeText {
            id: quoteAge
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
            anchors { leftMargin: Theme.margin; rightMargin: Theme.spacingSmall; bottomMargin: 1 }
            age: page.screen.quoteAge
        }
    }
    PageFlickable {
        id: book
        // Where the sides do not fit, the best levels of both are seen first, and no level by half.
        readonly property real row: Math.max(Theme.scaled(30), page.levelHeight)
        readonly property real start: Math.max(0, Math.min(sell.handicapView.bestRow, Math.round((sell.height - height / 2) / row))) * row
        anchors { right: parent.right; top: bookTitle.bottom; bottom: scroll.bottom }
        width: page.bookWidth
        contentHeight: sides.height
        onStartChanged: if (!moving) contentY = Math.min(start, Math.max(0, contentHeight - height))
        onDragStarted: page.screen.scrollViewWillBeginDragging()

        Column {
            id: sides
            width: parent.width

            OrderBookSide {
                id: sell
                width: parent.width
                handicapView: page.screen.sellHandicapView
                buySide: false
                stale: page.screen.quoteAge.stale
                name: "卖盘"
                rowHeight: book.row
            }
            Hairline {
                width: parent.width
                height: Theme.spacingTiny
                deep: true
            }
            OrderBookSide {
                width: parent.width
                handicapView: page.screen.buyHandicapView
                buySide: true
                stale: page.screen.quoteAge.stale
                name: "买盘"
                rowHeight: book.row
            }
        }
    }
    PrimaryButton {
        id: submitButton
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        anchors { leftMargin: Theme.margin; rightMargin: Theme.margin; bottomMargin: Theme.spacingSmall }
        deep: true
        fill: page.screen.isBuyType ? Theme.buy : Theme.sell
        text: page.screen.submitTitle
        onClicked: page.screen.submit()
    }
}
