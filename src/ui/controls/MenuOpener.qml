import QtQuick
import QtQuick.Templates as T
import Velmora

/// The part of a button that opens a menu: on a press, on Space, Return or an arrow; a drag from
/// the press to a line chooses that line.
T.AbstractButton {
    id: opener

    required property PopupMenu menu
    property bool dragged: false

    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    opacity: enabled ? 1 : 0.45
    onPressed: menu.open()
    Accessible.onPressAction: menu.open()
    Keys.onReturnPressed: menu.open()
    Keys.onEnterPressed: menu.open()
    Keys.onDownPressed: menu.open()
    Keys.onUpPressed: menu.open()

    PointHandler {
        id: pointer
        onPointChanged: {
            if (active && Math.abs(point.position.y - point.pressPosition.y) > 4)
                opener.dragged = true;
            if (active && opener.dragged)
                opener.menu.track(point.scenePosition);
        }
        onActiveChanged: {
            if (!active && opener.dragged && opener.menu.highlighted >= 0)
                opener.menu.pick(opener.menu.highlighted);
            opener.dragged = false;
        }
    }
}
