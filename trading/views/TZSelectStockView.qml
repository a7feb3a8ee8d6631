pragma ComponentBehavior: Bound

import QtQuick
import Zorvane.Ui

PageFrame {
    id: page
}
