pragma Singleton

import QtQuick

QtObject {
    readonly property color navigationBar: "#313030"
}
