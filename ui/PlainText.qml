import QtQuick

/// A text as it stands: what looks like markup in a nickname or a message is shown, never read.
Text {
    textFormat: Text.PlainText
}
