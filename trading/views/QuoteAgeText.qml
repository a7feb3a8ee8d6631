import QtQuick
import Zorvane.Ui
import Zorvane.Trading

/// Says how old the quote beside it is, once that is too old.
AmountText {
    required property QuoteAge age

    visible: age.stale
    text: age.text
    font: Theme.caption
    color: Theme.warning
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
