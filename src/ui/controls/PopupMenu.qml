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
    /// Whether a click may still be the second half of the one that opened the menu.
    property bool opening: false
    /// Where the pointer opened the menu or was first seen in it, and whether it has moved since.
    property var restingPlace: null
    property bool pointed: false

    signal chosen(int index)
    signal sideways(int delta)

    function step(delta: int) {
        let next = highlighted < 0 && delta < 0 ? rows.count - 1 : highlighted + delta;
        while (next >= 0 && next < rows.count && !(rows.itemAt(next) as MenuRow).selectable)
            next += delta;
        if (next >= 0 && next < rows.count)
            highlighted = next;
        showHighlighted();
    }
    function showHighlighted() {
        const row = rows.itemAt(highlighted) as MenuRow;
        if (row)
            flick.contentY = Math.max(row.y + row.height - flick.height,
                                      Math.min(row.y, flick.contentY));
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
    function follow(scene: point) {
        if (restingPlace === null)
            restingPlace = scene;
        pointed = pointed || Math.abs(scene.x - restingPlace.x) > 3
                          || Math.abs(scene.y - restingPlace.y) > 3;
        if (pointed)
            track(scene);
    }
    function track(scene: point) {
        const place = column.mapFromItem(null, scene.x, scene.y);
        const inside = place.x >= 0 && place.x < flick.width;
        const row = inside ? column.childAt(0, place.y) as MenuRow : null;
        highlighted = row !== null && row.selectable ? row.index : -1;
    }

    focus: true
    modal: true
    dim: false
    margins: 6
    padding: 5
    implicitWidth: column.implicitWidth + leftPadding + rightPadding
    implicitHeight: column.implicitHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onAboutToShow: {
        made = true;
        restingPlace = null;
        pointed = false;
        highlighted = markedIndex;
        focusedBefore = parent.Window.activeFocusItem;
    }
    onClosed: focusedBefore?.forceActiveFocus(Qt.PopupFocusReason)
    onOpened: {
        flick.forceActiveFocus(Qt.PopupFocusReason);
        showHighlighted();
    }

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.topMargin: 3
            anchors.margins: -2
            anchors.bottomMargin: -5
            radius: Theme.panelRadius
            color: Theme.shadow
            opacity: 0.35
        }
        Rectangle {
            anchors.fill: parent
            radius: Theme.boxRadius
            color: Theme.menuBackground
            border.color: Theme.controlBorder
        }
    }

    Flickable {
        id: flick
        anchors.fill: parent
        contentHeight: column.implicitHeight
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        clip: interactive
        Accessible.role: Accessible.PopupMenu
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
