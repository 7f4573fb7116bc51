import QtQuick
import Velmora

/// The face of a menu, with its shadow.
Item {
    Rectangle {
        anchors.fill: parent
        anchors.topMargin: 3
        anchors.margins: -2
        anchors.bottomMargin: -5
        radius: Theme.panelRadius
        color: Theme.shadow
        opacity: 0.35
    }
    Rectangle {
        anchors.fill: parent
        radius: Theme.boxRadius
        color: Theme.menuBackground
        border.color: Theme.controlBorder
    }
}
