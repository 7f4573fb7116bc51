import QtQuick
import Velmora

/// The raised face of a bordered control: a fill, a thin edge and a slightly darker foot.
Rectangle {
    id: surface

    property bool prominent: false
    property bool pressed: false
    property bool hovered: false

    radius: Theme.radius
    color: !enabled ? "transparent" : prominent ? Theme.accentPressed : Theme.controlEdge

    Rectangle {
        anchors.fill: parent
        anchors.bottomMargin: surface.prominent ? 0 : 1
        radius: surface.radius
        border.width: surface.prominent ? 0 : 1
        border.color: Theme.controlBorder
        color: surface.prominent
               ? (surface.pressed ? Theme.accentPressed
                                  : surface.hovered ? Theme.accentHover : Theme.accent)
               : (surface.pressed ? Theme.controlPressed
                                  : surface.hovered ? Theme.controlHover : Theme.controlBackground)

        Behavior on color {
            ColorAnimation { duration: Theme.quick }
        }
    }
}
