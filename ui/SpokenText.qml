import QtQuick

/// A text that stands alone: no control or row speaks it.
PlainText {
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: text === ""
}
