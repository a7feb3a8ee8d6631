import QtQuick

/// A shadow drawn beforehand, 12 points around its parent.
BorderImage {
    anchors.fill: parent
    anchors.margins: -12
    z: -1
    border { left: 24; right: 24; top: 24; bottom: 24 }
    source: Theme.image("shadow")
    Accessible.ignored: true
}
