import QtQuick

/// A named picture; decoration only, what it stands for is said by the control around it.
Image {
    required property string name
    property int size: Theme.iconSize

    asynchronous: true
    width: size
    height: size
    sourceSize.width: size
    sourceSize.height: size
    fillMode: Image.PreserveAspectFit
    source: Theme.image(name)
}
