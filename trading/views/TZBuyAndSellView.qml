pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Trading

/// The stock on top, below it the form with the order book at its side, the submit button at the bottom.
PageFrame {
    id: page

    readonly property TZBuyAndSellController screen: controller as TZBuyAndSellController
    readonly property real bookWidth: Math.min(260, Math.floor(width * 0.46))
    readonly property real quoteOpacity: screen.quoteAge.stale ? Theme.disabledOpacity : 1
    readonly property real levelHeight: Math.floor((scroll.height - bookTitle.height - Theme.spacing) / 20)

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
        anchors { left: parent.left; right: parent.right; top: stockRow.bottom; bottom: submitButton.top }
        anchors.bottomMargin: Theme.spacingSmall
        contentHeight: Math.max(height, form.height, book.height)
        onDragStarted: page.screen.scrollViewWillBeginDragging()

        TapHandler {
            onTapped: page.screen.scrollViewWillBeginDragging()
        }
        Column {
            id: form
            width: parent.width - page.bookWidth

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
                    deep: true
                    text: page.screen.currentPriceText
                    opacity: page.quoteOpacity
                    font: Theme.caption
                    color: Theme.deep.textSecondary
                }
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
                readonly property real buttonWidth: (form.width - 2 * Theme.spacing - 2 * Theme.spacingSmall) / 3
                x: Theme.spacing
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
                Accessible.ignored: text === ""
            }
        }
        Column {
            id: book
            x: form.width
            width: page.bookWidth
            bottomPadding: Theme.spacingSmall

            Item {
                id: bookTitle
                width: parent.width
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
            OrderBookSide {
                width: parent.width
                handicapView: page.screen.sellHandicapView
                buySide: false
                name: "卖盘"
                rowHeight: Math.max(Theme.scaled(30), page.levelHeight)
                opacity: page.quoteOpacity
            }
            Hairline {
                width: parent.width
                deep: true
            }
            OrderBookSide {
                width: parent.width
                handicapView: page.screen.buyHandicapView
                buySide: true
                name: "买盘"
                rowHeight: Math.max(Theme.scaled(30), page.levelHeight)
                opacity: page.quoteOpacity
            }
        }
    }
    PrimaryButton {
        id: submitButton
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        anchors { leftMargin: Theme.spacing; rightMargin: Theme.spacing; bottomMargin: Theme.spacingSmall }
        deep: true
        fill: page.screen.isBuyType ? Theme.buy : Theme.sell
        text: page.screen.submitTitle
        onClicked: page.screen.submit()
    }
}
