pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velmora

/// A pop-up menu. Arrows, Return, Space and Escape work it, as do a click and a drag from the
/// button that opened it. A pointer that rests where the menu opens means nothing by it.
T.Popup {
    id: menu

    property var entries: []
    property int markedIndex: -1
    property bool marksColumn: false
    property int highlighted: -1
    property Item focusedBefore: null
    /// The rows are made when the menu is first wanted.
    property bool made: false
    readonly property real rowsTop: topPadding
    /// How much of the rows lies above the menu's frame as it opens, and has not been scrolled into
    /// it since.
    property real stillHidden: 0
    /// Whether a click may still be the second half of the one that opened the menu.
    property bool opening: false
    /// Where the pointer opened the menu, was first seen in it or lay at the last key, where it was
    /// last seen, and whether it has moved since.
    property var restingPlace: null
    property var lastPlace: null
    property bool pointed: false
    /// The way in which the pointer at the frame's edge scrolls: -1 up, 1 down.
    property int creeping: 0
    /// The window's own menu bar, which lies over the menu.
    readonly property Item bar: T.ApplicationWindow.menuBar

    signal chosen(int index)
    signal sideways(int delta)

    function step(delta: int) {
        let next = highlighted < 0 && delta < 0 ? rows.count - 1 : highlighted + delta;
        while (next >= 0 && next < rows.count && !(rows.itemAt(next) as MenuRow).selectable)
            next += delta;
        if (next >= 0 && next < rows.count)
            highlighted = next;
        showHighlighted();
        restingPlace = lastPlace;
        pointed = false;
        creeping = 0;
    }
    function showHighlighted() {
        const row = rows.itemAt(highlighted) as MenuRow;
        if (row)
            scrollTo(Math.max(row.y + row.height - flick.height, Math.min(row.y, flick.contentY)));
    }
    function pick(index: int) {
        close();
        if (index >= 0)
            chosen(index);
    }
    function pickByKey(event: KeyEvent) {
        if (!event.isAutoRepeat)
            pick(highlighted);
    }
    function scrollTo(place: real) {
        flick.contentY = Math.max(0, Math.min(flick.contentHeight - flick.height, place));
        grow();
    }
    function grow() {
        stillHidden = Math.max(0, Math.min(stillHidden, flick.contentY));
    }
    function follow(scene: point) {
        lastPlace = scene;
        if (restingPlace === null)
            restingPlace = scene;
        pointed = pointed || Math.abs(scene.x - restingPlace.x) > 3
                          || Math.abs(scene.y - restingPlace.y) > 3;
        if (pointed)
            track(scene);
    }
    function track(scene: point) {
        const place = flick.mapFromItem(null, scene.x, scene.y);
        const row = flick.contains(place)
                    ? column.childAt(0, place.y + flick.contentY) as MenuRow : null;
        highlighted = row !== null && row.selectable ? row.index : -1;
        lastPlace = scene;
        creeping = !flick.interactive ? 0 : place.y < 12 ? -1 : place.y > flick.height - 12 ? 1 : 0;
    }

    focus: true
    modal: true
    dim: false
    margins: 6
    topMargin: margins + (bar?.visible ? bar.height : 0)
    padding: 5
    implicitWidth: column.implicitWidth + leftPadding + rightPadding
    implicitHeight: column.implicitHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onAboutToShow: {
        made = true;
        column.forceLayout();
        restingPlace = null;
        lastPlace = null;
        pointed = false;
        creeping = 0;
        highlighted = markedIndex;
        focusedBefore = parent.Window.activeFocusItem;
    }
    onClosed: focusedBefore?.forceActiveFocus(Qt.PopupFocusReason)
    onOpened: {
        flick.forceActiveFocus(Qt.PopupFocusReason);
        flick.contentY = stillHidden;
        showHighlighted();
    }

    Timer {
        interval: 40
        repeat: true
        running: menu.visible && menu.creeping !== 0
        onTriggered: {
            menu.scrollTo(flick.contentY + 12 * menu.creeping);
            menu.track(menu.lastPlace);
        }
    }

    // After the movement's step, which a taller frame would end.
    Timer {
        id: growing
        interval: 0
        onTriggered: menu.grow()
    }

    background: MenuSurface {}

    Flickable {
        id: flick
        anchors.fill: parent
        contentHeight: column.implicitHeight
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        clip: interactive
        onContentYChanged: if (moving) growing.restart()
        Accessible.role: Accessible.PopupMenu
        T.ScrollBar.vertical: SlimScrollBar {}
        Keys.onUpPressed: menu.step(-1)
        Keys.onDownPressed: menu.step(1)
        Keys.onReturnPressed: event => menu.pickByKey(event)
        Keys.onEnterPressed: event => menu.pickByKey(event)
        Keys.onSpacePressed: event => menu.pickByKey(event)
        Keys.onLeftPressed: menu.sideways(-1)
        Keys.onRightPressed: menu.sideways(1)
        Keys.onTabPressed: {}
        Keys.onBacktabPressed: {}

        HoverHandler {
            onPointChanged: if (hovered) menu.follow(point.scenePosition)
        }
        // No layout: in a closed menu it would go on holding rows that are gone.
        Column {
            id: column

            Repeater {
                id: rows
                model: menu.made ? menu.entries : []

                MenuRow {
                    fullWidth: flick.width
                    highlighted: menu.highlighted === index
                    marked: menu.markedIndex === index
                    marksColumn: menu.marksColumn
                    onClicked: if (menu.pointed || !menu.opening) menu.pick(index)
                    onPicked: menu.pick(index)
                }
            }
        }
    }
}
