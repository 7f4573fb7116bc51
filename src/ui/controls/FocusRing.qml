import QtQuick
import Velmora

/// The glow around the control that has the keyboard.
Rectangle {
    id: ring

    property real cornerRadius: Theme.radius
    property bool shown: false

    anchors.fill: parent
    anchors.margins: -Theme.focusRingWidth
    radius: cornerRadius + Theme.focusRingWidth
    color: "transparent"
    border.width: Theme.focusRingWidth
    border.color: Theme.focusRing
    visible: shown
}
