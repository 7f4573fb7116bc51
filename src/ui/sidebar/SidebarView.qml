pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velmora

/// The lists to choose from.
Rectangle {
    id: sidebar

    required property SidebarModel model

    readonly property int lastRow: list.count - 1

    color: Theme.sidebarBackground

    BodyText {
        id: heading
        x: 18
        y: 10
        height: 24
        verticalAlignment: Text.AlignVCenter
        text: "Lists"
        color: Theme.secondary
        font.pixelSize: Theme.caption
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
    ListView {
        id: list

        property bool complete: false

        anchors.fill: parent
        anchors.topMargin: heading.y + heading.height
        model: sidebar.model
        currentIndex: sidebar.model.currentRow
        highlightFollowsCurrentItem: false
        enabled: sidebar.model.enabled
        opacity: enabled ? 1 : Theme.disabledOpacity
        activeFocusOnTab: true
        keyNavigationEnabled: false
        boundsBehavior: Flickable.StopAtBounds
        reuseItems: true
        clip: true
        onCurrentIndexChanged: if (complete) positionViewAtIndex(currentIndex, ListView.Contain)
        Component.onCompleted: complete = true
        Accessible.role: Accessible.List
        Accessible.name: "Lists"
        Accessible.description: enabled ? "" : Theme.unavailable
        T.ScrollBar.vertical: SlimScrollBar {}
        FocusRing {
            anchors.margins: 6
            shown: list.activeFocus && sidebar.model.currentRow < 0
        }
        Keys.onUpPressed: sidebar.model.choose(Math.max(0, sidebar.model.currentRow - 1))
        Keys.onDownPressed: sidebar.model.choose(Math.min(sidebar.lastRow,
                                                          sidebar.model.currentRow + 1))
        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
            if (event.accepted)
                sidebar.model.choose(event.key === Qt.Key_Home ? 0 : sidebar.lastRow);
        }

        delegate: SidebarRow {
            width: list.width
            current: index === sidebar.model.currentRow
            focused: list.activeFocus
            onPicked: {
                list.forceActiveFocus(Qt.MouseFocusReason);
                sidebar.model.choose(index);
            }
            onCleared: sidebar.model.choose(-1)
        }
    }
}
