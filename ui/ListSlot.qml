import QtQuick

/// The place of an item that scrolls with the rows of a list; as wide as the list.
Item {
    id: slot

    property Item content

    function fit() {
        if (!content)
            return
        content.parent = slot
        content.width = width
    }

    width: parent ? parent.width : 0
    height: content && content.visible ? content.height : 0
    onContentChanged: fit()
    onWidthChanged: fit()
    Component.onCompleted: fit()
}
