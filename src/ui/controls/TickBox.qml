pragma ComponentBehavior: Bound
import QtQuick
import Velmora

/// A check box. It shows `checked` as its view binds it and asks for a change by `toggled`.
Item {
    id: box

    property bool checked: false
    property string accessibleName

    signal toggled(bool checked)

    implicitWidth: 16
    implicitHeight: 16
    activeFocusOnTab: true
    opacity: enabled ? 1 : 0.45
    Accessible.role: Accessible.CheckBox
    Accessible.name: accessibleName
    Accessible.description: enabled ? "" : Theme.unavailable
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: box.toggled(!box.checked)
    Accessible.onToggleAction: box.toggled(!box.checked)
    Keys.onSpacePressed: event => {
        if (!event.isAutoRepeat)
            box.toggled(!box.checked);
    }

    TapHandler {
        id: tap
        margin: 4
        gesturePolicy: TapHandler.WithinBounds
        onTapped: box.toggled(!box.checked)
    }

    HoverHandler {
        id: hover
        margin: 4
    }

    Rectangle {
        anchors.fill: parent
        radius: 4
        color: box.checked ? (tap.pressed ? Theme.accentPressed : Theme.accent)
                           : (tap.pressed ? Theme.controlPressed
                                          : hover.hovered ? Theme.controlHover
                                                        : Theme.controlBackground)
        border.width: box.checked ? 0 : 1
        border.color: Theme.boxEdge

        SymbolIcon {
            anchors.centerIn: parent
            name: "checkmark"
            size: 12
            color: Theme.overAccent
            visible: box.checked
        }
        FocusRing {
            cornerRadius: 4
            shown: box.activeFocus
        }
    }
}
