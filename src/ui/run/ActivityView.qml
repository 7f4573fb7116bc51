pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Velmora

/// The log of the run, the newest text first.
ColumnLayout {
    id: view

    required property ActivityModel model

    implicitHeight: 120 + heading.implicitHeight + spacing
    spacing: 8

    SectionHeading {
        id: heading
        text: "Activity"
    }
    FieldSurface {
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.minimumHeight: 120
        radius: Theme.boxRadius
        border.color: Theme.separator
        focused: list.activeFocus

        ListView {
            id: list
            anchors.fill: parent
            anchors.margins: 1
            model: view.model
            clip: true
            reuseItems: true
            topMargin: 4
            bottomMargin: 4
            boundsBehavior: Flickable.StopAtBounds
            activeFocusOnTab: true
            keyNavigationEnabled: true
            highlightMoveDuration: 0
            // The keyboard begins at the first row in sight, wherever new ones have moved the last.
            onActiveFocusChanged: if (activeFocus) currentIndex = Math.max(0, indexAt(1, contentY + 12))
            Accessible.role: Accessible.List
            Accessible.name: "Activity"
            T.ScrollBar.vertical: SlimScrollBar {}
            ReadingOrder {
                rows: list.contentItem
            }
            delegate: ActivityRow {
                width: list.width
                current: ListView.isCurrentItem && list.activeFocus
            }
        }
    }
}
