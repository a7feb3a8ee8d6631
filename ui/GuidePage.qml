import QtQuick

/// One page of the guide: its picture with a headline and a line under it.
Item {
    id: page

    property string picture
    property string headline
    property string line
    // Room for the dots and the button.
    readonly property int footer: 128

    Accessible.role: Accessible.StaticText
    Accessible.name: headline + "，" + line

    Image {
        anchors.fill: parent
        sourceSize.width: width
        sourceSize.height: height
        fillMode: Image.PreserveAspectCrop
        source: Theme.image(page.picture)
    }
    Column {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Theme.spacingHuge }
        anchors.bottomMargin: page.footer + Theme.spacingSmall
        spacing: Theme.spacing

        PlainText {
            width: parent.width
            text: page.headline
            font: Theme.headline
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Theme.title.pixelSize
            color: Theme.navigationText
            horizontalAlignment: Text.AlignHCenter
        }
        PlainText {
            width: parent.width
            text: page.line
            font: Theme.body
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Theme.smallestText
            color: Theme.deepLight.textSecondary
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
