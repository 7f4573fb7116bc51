import QtQuick
import Velmora

/// The part of a button that opens a menu: on a press, on Space, Return or an arrow; a drag from
/// the press to a line chooses that line. Without entries it looks disabled and opens nothing.
Item {
    id: opener

    required property PopupMenu menu
    property string text
    property bool dragged: false
    readonly property bool hovered: hover.hovered
    readonly property bool filled: menu.entries.length > 0

    function open() {
        if (filled)
            menu.open();
    }

    activeFocusOnTab: true
    opacity: enabled && filled ? 1 : 0.45
    Accessible.focusable: true
    Accessible.onPressAction: open()
    Keys.onSpacePressed: open()
    Keys.onReturnPressed: open()
    Keys.onEnterPressed: open()
    Keys.onDownPressed: open()
    Keys.onUpPressed: open()

    HoverHandler { id: hover }

    PointHandler {
        acceptedButtons: Qt.LeftButton
        onPointChanged: {
            if (active && Math.abs(point.position.y - point.pressPosition.y) > 4)
                opener.dragged = true;
            if (active && opener.dragged)
                opener.menu.track(point.scenePosition);
        }
        onActiveChanged: {
            if (active)
                opener.open();
            else if (opener.dragged && opener.menu.highlighted >= 0)
                opener.menu.pick(opener.menu.highlighted);
            opener.dragged = false;
        }
    }
}
