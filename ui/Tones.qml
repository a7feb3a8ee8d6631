import QtQuick

/// The colours of one kind of page by meaning.
QtObject {
    required property color page
    required property color surface
    required property color surfacePressed
    required property color hairline
    required property color textPrimary
    required property color textSecondary
    required property color placeholder
    required property color disabled
    required property color accent
    required property color rise
    required property color fall
    required property color flat
}
