import QtQuick

/// A message that comes and goes by itself under the navigation bar. The colour of its kind lets some of the bar's shine
/// through, and nothing of what the message covers.
Rectangle {
    id: banner

    required property string content
    required property bool success
    required property bool fading

    width: parent ? parent.width : 0
    // A long message of the service is to be read whole.
    height: Math.max(Theme.bannerHeight, words.implicitHeight + Theme.spacingSmall)
    y: Theme.bannerTop
    color: Theme.navigationBar
    opacity: 0
    Accessible.role: Accessible.AlertMessage
    Accessible.name: content
    onFadingChanged: opacity = fading ? 0 : 1
    Component.onCompleted: opacity = fading ? 0 : 1

    Behavior on opacity {
        NumberAnimation { duration: Theme.motionBanner }
    }
    Rectangle {
        anchors.fill: parent
        color: banner.success ? Theme.successBanner : Theme.errorBanner
        opacity: Theme.bannerOpacity
    }
    Icon {
        id: icon
        anchors { left: parent.left; leftMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        name: banner.success ? "notice_success" : "notice_warning"
    }
    PlainText {
        id: words
        anchors { left: icon.right; right: parent.right; verticalCenter: parent.verticalCenter }
        anchors.leftMargin: Theme.spacingSmall
        anchors.rightMargin: Theme.margin
        text: banner.content
        font: Theme.body
        color: Theme.textOnAccent
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
        elide: Text.ElideRight
        maximumLineCount: 4
    }
}
