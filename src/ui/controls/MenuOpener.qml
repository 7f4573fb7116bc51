import QtQuick
import Velmora

/// The part of a button that opens a menu: on a press, on Space, Return or an arrow; a drag from
/// the press to a line chooses that line, but the shaking of a quick click does not choose the
/// marked one, which may open under the pointer. Without entries it looks disabled and opens nothing.
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
    function openByKey(event: KeyEvent) {
        if (!event.isAutoRepeat)
            open();
    }

    activeFocusOnTab: filled
    opacity: enabled && filled ? 1 : Theme.disabledOpacity
    Accessible.focusable: true
    Accessible.onPressAction: if (enabled) open()
    Keys.onSpacePressed: event => openByKey(event)
    Keys.onReturnPressed: event => openByKey(event)
    Keys.onEnterPressed: event => openByKey(event)
    Keys.onDownPressed: event => openByKey(event)
    Keys.onUpPressed: event => openByKey(event)

    HoverHandler { id: hover }

    Timer {
        id: click
        interval: Application.styleHints.mouseDoubleClickInterval
        onRunningChanged: opener.menu.opening = running
    }
    PointHandler {
        acceptedButtons: Qt.LeftButton
        onPointChanged: {
            if (active && Math.abs(point.position.y - point.pressPosition.y) > 4)
                opener.dragged = true;
            if (active && opener.dragged)
                opener.menu.track(point.scenePosition);
        }
        onActiveChanged: {
            const menu = opener.menu;
            if (active) {
                click.restart();
                opener.open();
                menu.restingPlace = point.scenePressPosition;
            } else if (opener.dragged && menu.highlighted >= 0
                       && (menu.highlighted !== menu.markedIndex || !click.running)) {
                menu.pick(menu.highlighted);
            }
            opener.dragged = false;
        }
    }
}
