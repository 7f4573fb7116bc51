import QtQuick
import Velmora

/// The face of what takes the keyboard: a fill, a thin edge, and the glow while it has it.
Rectangle {
    id: surface

    property bool focused: false

    radius: Theme.smallRadius
    color: Theme.textBackground
    border.color: Theme.controlBorder

    FocusRing {
        cornerRadius: surface.radius
        shown: surface.focused
    }
}
