import QtQuick
import Velmora

/// The soft shadow that lifts a sheet off the window.
Item {
    Repeater {
        model: [2, 6, 12, 20]

        Rectangle {
            required property int modelData

            anchors.fill: parent
            anchors.margins: -modelData
            anchors.topMargin: 4 - modelData
            anchors.bottomMargin: -6 - modelData
            radius: Theme.panelRadius + modelData
            color: Theme.shadow
            opacity: 0.3
        }
    }
}
