import QtQuick

/// The colours of one kind of page by meaning.
QtObject {
    /// Whether green stands for a rise.
    required property bool greenRises
    required property color page
    required property color surface
    required property color surfacePressed
    required property color hairline
    required property color textPrimary
    required property color textSecondary
    required property color placeholder
    required property color disabled
    required property color accent
    required property color focusRing
    required property color red
    required property color green
    required property color flat
    readonly property color rise: greenRises ? green : red
    readonly property color fall: greenRises ? red : green
}
