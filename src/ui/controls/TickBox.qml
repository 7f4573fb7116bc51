pragma ComponentBehavior: Bound
import QtQuick
import Velmora

/// A check box. It shows `checked` as its view binds it and asks for a change by `toggled`.
Item {
    id: box

    property bool checked: false
    property string accessibleName

    /// Who is in a run stays to be seen while nobody can be added.
    readonly property bool locked: checked && !enabled

    signal toggled(bool checked)

    implicitWidth: 16
    implicitHeight: 16
    activeFocusOnTab: true
    opacity: enabled || locked ? 1 : Theme.disabledOpacity
    Accessible.role: Accessible.CheckBox
    Accessible.name: accessibleName
    Accessible.description: enabled ? "" : Theme.unavailable
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: if (enabled) box.toggled(!box.checked)
    Accessible.onToggleAction: if (enabled) box.toggled(!box.checked)
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
        radius: Theme.tinyRadius
        color: box.locked ? Theme.quaternary
               : box.checked ? (tap.pressed ? Theme.accentPressed : Theme.accent)
                           : (tap.pressed ? Theme.controlPressed
                                          : hover.hovered ? Theme.controlHover
                                                        : Theme.controlBackground)
        border.width: box.checked && !box.locked ? 0 : 1
        border.color: Theme.boxEdge

        SymbolIcon {
            anchors.centerIn: parent
            name: "checkmark"
            weight: "bold"
            size: 14
            color: box.locked ? Theme.secondary : Theme.overAccent
            visible: box.checked
        }
        FocusRing {
            cornerRadius: Theme.tinyRadius
            shown: box.activeFocus
        }
    }
}
