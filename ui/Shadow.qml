import QtQuick

/// A shadow drawn beforehand, 12 points around its parent.
BorderImage {
    anchors.fill: parent
    anchors.margins: -12
    z: -1
    border { left: 16; right: 16; top: 16; bottom: 16 }
    source: Theme.image("shadow")
}
