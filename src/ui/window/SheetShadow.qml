import QtQuick
import Velmora

/// The soft shadow that lifts a sheet off the window.
Item {
    Repeater {
        model: 14

        Rectangle {
            required property int index

            readonly property real reach: 0.12 * index * index + 1

            anchors.fill: parent
            anchors.margins: -reach
            anchors.topMargin: 4 - reach
            anchors.bottomMargin: -6 - reach
            radius: Theme.panelRadius + reach
            color: Theme.shadow
            opacity: 0.1
        }
    }
}
