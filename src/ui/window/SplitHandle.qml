import QtQuick
import Velmora

/// The line between the sidebar and the rest, dragged by the pointer or moved by the arrow keys.
Item {
    id: handle

    required property int value
    required property int from
    required property int to

    readonly property int minimumValue: from
    readonly property int maximumValue: to

    signal moved(int value)

    function moveBy(distance: int) {
        moved(Math.max(from, Math.min(to, value + distance)));
    }

    implicitWidth: 1
    activeFocusOnTab: true
    Accessible.role: Accessible.Slider
    Accessible.name: "Sidebar width"
    Accessible.focusable: true
    Accessible.onIncreaseAction: handle.moveBy(10)
    Accessible.onDecreaseAction: handle.moveBy(-10)
    Keys.onLeftPressed: handle.moveBy(-10)
    Keys.onRightPressed: handle.moveBy(10)

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: handle.activeFocus ? -1 : 0
        anchors.rightMargin: handle.activeFocus ? -1 : 0
        color: handle.activeFocus ? Theme.accent : Theme.separator
    }
    Item {
        anchors.fill: parent
        anchors.leftMargin: -4
        anchors.rightMargin: -4

        HoverHandler {
            cursorShape: Qt.SplitHCursor
        }
        DragHandler {
            id: drag

            property int start

            target: null
            xAxis.enabled: true
            yAxis.enabled: false
            dragThreshold: 0
            onActiveChanged: start = handle.value
            onActiveTranslationChanged: {
                if (drag.active)
                    handle.moved(Math.max(handle.from, Math.min(handle.to, drag.start
                                          + drag.centroid.scenePosition.x
                                          - drag.centroid.scenePressPosition.x)));
            }
        }
    }
}
