pragma ComponentBehavior: Bound

import QtQuick

Item {
    id: page

    required property KRBaseController controller

    Text {
        text: page.controller.title
        color: Theme.navigationBar
    }
    Component.onCompleted: page.controller.backButtonClicked()
}
