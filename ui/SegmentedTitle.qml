pragma ComponentBehavior: Bound

import QtQuick

/// Two titles to switch between, for the place of a page's title.
Row {
    id: segments

    required property list<string> titles
    /// Of the group, for those who do not see it.
    required property string name
    property int currentIndex: 0

    signal selected(int index)

    Accessible.role: Accessible.PageTabList
    Accessible.name: name

    Repeater {
        model: segments.titles
        Tappable {
            id: segment

            required property int index
            required property string modelData
            readonly property bool current: segments.currentIndex === index

            width: Theme.scaled(96)
            height: Theme.touchTarget
            deep: true
            text: modelData
            Accessible.role: Accessible.PageTab
            Accessible.selected: current
            onClicked: segments.selected(index)
            contentItem: PlainText {
                text: segment.text
                font: segment.current ? Theme.title : Theme.body
                color: segment.current ? Theme.navigationText : segment.tones.textSecondary
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
            }
            background: Item {
                Rectangle {
                    anchors { bottom: parent.bottom; horizontalCenter: parent.horizontalCenter; bottomMargin: 1 }
                    width: 24
                    height: 3
                    radius: 1.5
                    visible: segment.current
                    color: segment.tones.accent
                }
            }
        }
    }
}
