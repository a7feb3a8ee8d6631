import QtQuick
import Zorvane.Ui

/// Twenty levels whose texts change without a model.
Rectangle {
    id: book

    property bool turn: false

    color: Theme.pageBlue

    Column {
        width: 180

        Repeater {
            model: 20

            OrderBookRow {
                width: parent.width
                title: "买1"
                price: book.turn ? "12.34" : "12.35"
                volume: book.turn ? "1200" : "1900"
                share: book.turn ? 0.4 : 0.6
                trend: book.turn ? 1 : -1
            }
        }
    }
}
