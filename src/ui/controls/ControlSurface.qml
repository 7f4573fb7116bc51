import QtQuick
import Velmora

/// The raised face of a bordered control: a fill, a thin edge and, in light, a slightly darker foot.
Rectangle {
    id: surface

    property bool prominent: false
    /// Whether it is a mere trace of a face.
    property bool flat: false
    property bool pressed: false
    property bool hovered: false

    readonly property int foot: enabled && !prominent && !Theme.dark ? 1 : 0

    radius: Theme.radius
    color: foot === 0 ? "transparent" : Theme.controlEdge

    Rectangle {
        anchors.fill: parent
        anchors.bottomMargin: surface.foot
        radius: surface.radius
        border.width: surface.prominent || surface.flat ? 0 : 1
        border.color: Theme.controlBorder
        color: surface.flat ? Theme.quaternary : surface.prominent
               ? (surface.pressed ? Theme.accentPressed
                                  : surface.hovered ? Theme.accentHover : Theme.accent)
               : (surface.pressed ? Theme.controlPressed
                                  : surface.hovered ? Theme.controlHover : Theme.controlBackground)

        Behavior on color {
            ColorAnimation { duration: Theme.quick }
        }
    }
}
