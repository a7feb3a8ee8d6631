import QtQuick

/// A message that comes and goes by itself under the navigation bar.
Rectangle {
    id: banner

    required property string content
    required property bool success
    required property bool fading

    width: parent ? parent.width : 0
    height: Theme.bannerHeight
    y: Theme.bannerTop
    color: success ? Theme.successBanner : Theme.errorBanner
    opacity: 0
    Accessible.role: Accessible.AlertMessage
    Accessible.name: content
    onFadingChanged: opacity = fading ? 0 : Theme.bannerOpacity
    Component.onCompleted: opacity = fading ? 0 : Theme.bannerOpacity

    Behavior on opacity {
        NumberAnimation { duration: Theme.motionBanner }
    }
    Icon {
        id: icon
        anchors { left: parent.left; leftMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        name: banner.success ? "notice_success" : "notice_warning"
    }
    PlainText {
        anchors { left: icon.right; right: parent.right; verticalCenter: parent.verticalCenter }
        anchors.leftMargin: Theme.spacingSmall
        anchors.rightMargin: Theme.margin
        text: banner.content
        font: Theme.body
        fontSizeMode: Text.Fit
        minimumPixelSize: Theme.smallestText
        height: parent.height
        color: Theme.textOnAccent
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
        elide: Text.ElideRight
        maximumLineCount: 2
        Accessible.ignored: true
    }
}
