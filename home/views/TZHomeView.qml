pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Home

/// The first page: one of its two faces above the two ways in.
PageFrame {
    id: page

    required controller
    readonly property TZHomeViewController home: controller as TZHomeViewController

    RefreshableList {
        id: signedIn
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: entries.top; bottomMargin: Theme.spacing }
        // Not bound to being visible, which it is not while another page covers this one.
        focus: page.home.face === TZHomeViewController.SignedIn
        visible: page.home.face === TZHomeViewController.SignedIn
        controller: page.home
        deep: true
        model: visible ? 1 : 0
        Accessible.role: Accessible.Pane
        Accessible.name: page.home.header.assetTitle.figure
        delegate: LoginViewCell {
            width: ListView.view.width
            height: Math.max(implicitHeight, ListView.view.height)
            home: page.home
        }
    }
    ViewHost {
        anchors.fill: signedIn
        visible: page.home.face === TZHomeViewController.SignedOut
        focus: page.home.face === TZHomeViewController.SignedOut
        onVisibleChanged: if (visible && !view) show(Qt.resolvedUrl("UnloginView.qml"), { home: page.home })
        Component.onCompleted: visibleChanged()
    }
    Row {
        id: entries
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Theme.margin }
        spacing: Theme.spacing

        HomeEntryCard {
            width: (entries.width - entries.spacing) / 2
            image: "home_pei_unlogin"
            text: "配资"
            caption: "首次五千元免息"
            onClicked: page.home.capitalBtnDidClick()
        }
        HomeEntryCard {
            width: (entries.width - entries.spacing) / 2
            image: "home_chao_unlogin"
            text: "炒股"
            caption: "佣金低至万三"
            onClicked: page.home.transactionBtnClick()
        }
    }
}
