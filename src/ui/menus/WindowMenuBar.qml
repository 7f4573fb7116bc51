pragma ComponentBehavior: Bound
import QtQuick
import Velmora

/// The menu bar in the window, where the desktop has none of its own. As that one it lies over
/// everything. While a menu is open, the pointer or the arrow keys go on to its neighbours.
UncoveredArea {
    id: bar

    required property MenuCommands commands

    property int opened: -1
    property Item keyboardBefore: null

    function open(place: int) {
        if (opened < 0)
            keyboardBefore = Window.activeFocusItem;
        opened = place;
    }

    implicitHeight: 28
    Accessible.role: Accessible.MenuBar

    Rectangle {
        anchors.fill: parent
        color: Theme.windowBackground
    }
    Row {
        x: 6

        Repeater {
            id: titles
            model: bar.commands.menus

            MenuTitle {
                height: bar.height - 1
                opened: bar.opened
                commands: bar.commands
                keyboardBefore: bar.keyboardBefore
                onWanted: place => bar.open((place + titles.count) % titles.count)
                onDismissed: if (bar.opened === index) bar.opened = -1
            }
        }
    }
    HorizontalDivider {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
