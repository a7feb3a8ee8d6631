pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui
import Zorvane.Home

PageFrame {
    id: page

    required controller
    readonly property TZMoreViewController more: controller as TZMoreViewController

    ContentList {
        anchors.fill: parent
        focus: true
        topMargin: Theme.spacing
        model: page.more.moreRows
        Accessible.name: page.more.title
        delegate: FormRow {
            required property int index
            required property string title
            required property string image

            width: ListView.view.width
            chevron: true
            label: title
            picture: image
            onClicked: page.more.didSelectRow(index)
        }
        footerContent: Column {
            SectionHeader {
                text: page.more.displayTitle
            }
            ChoiceRow {
                title: page.more.paletteTitle
                choices: page.more.palettes
                chosen: page.more.palette
                onPicked: index => page.more.palette = index
            }
            ChoiceRow {
                title: page.more.trendColoursTitle
                choices: page.more.trendColourPairs
                chosen: page.more.trendColours
                onPicked: index => page.more.trendColours = index
            }
            ChoiceRow {
                title: page.more.textSizeTitle
                choices: page.more.textSizes
                chosen: page.more.textSize
                line: false
                onPicked: index => page.more.textSize = index
            }
            Item {
                width: 1
                height: Theme.spacingHuge
            }
            PrimaryButton {
                x: Theme.margin
                width: parent.width - 2 * Theme.margin
                fill: Theme.leave
                text: page.more.logoutTitle
                onClicked: page.more.clickLogoutBtn()
            }
            Item {
                width: 1
                height: Theme.spacingHuge
            }
        }
    }
}
