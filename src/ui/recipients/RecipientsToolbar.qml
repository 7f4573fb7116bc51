import QtQuick
import QtQuick.Layouts
import Velmora

/// What stands above the list of people: who is shown, the search, and checking in bulk. Where one
/// line is too short the buttons go below.
Item {
    id: bar

    required property RecipientsModel model

    implicitHeight: grid.implicitHeight + 16
    enabled: model.enabled

    // The longest titles of the buttons: typing a search never moves them to another line.
    component TitleWidth: TextMetrics {
        font.family: Theme.fontFamily
        font.pixelSize: Theme.caption
    }
    TitleWidth {
        id: selectWidth
        text: "Select Shown"
    }
    TitleWidth {
        id: clearWidth
        text: "Clear Shown"
    }

    Connections {
        target: bar.model
        function onSearchRequested() {
            if (bar.visible && bar.enabled)
                search.forceActiveFocus(Qt.ShortcutFocusReason);
        }
    }
    GridLayout {
        id: grid

        readonly property real oneLine: 150 + 120 + Math.ceil(selectWidth.advanceWidth)
                                        + Math.ceil(clearWidth.advanceWidth)
                                        + 2 * buttons.spacing + 2 * columnSpacing

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: Theme.padding
        anchors.rightMargin: Theme.padding
        columns: width >= oneLine ? 3 : 2
        columnSpacing: 12
        rowSpacing: Theme.gap

        SegmentedChoice {
            Layout.preferredWidth: 150
            small: true
            options: ["All", "Selected"]
            currentIndex: bar.model.selectedOnly ? 1 : 0
            accessibleName: "Show"
            help: "Show everyone, or only the people you checked"
            onChosen: index => bar.model.showSelectedOnly(index === 1)
        }
        SearchEntry {
            id: search
            Layout.fillWidth: true
            Layout.minimumWidth: 120
            Layout.maximumWidth: 260
            placeholder: "Search people"
            text: bar.model.searchText
            onEdited: text => bar.model.search(text)
        }
        RowLayout {
            id: buttons
            Layout.columnSpan: grid.columns === 2 ? 2 : 1
            spacing: 8

            PushButton {
                kind: PushButton.Link
                controlSize: PushButton.Small
                text: bar.model.selectTitle
                onClicked: bar.model.selectShown()
            }
            PushButton {
                kind: PushButton.Link
                controlSize: PushButton.Small
                text: bar.model.clearTitle
                onClicked: bar.model.clearShown()
            }
            Item { Layout.fillWidth: true }
        }
    }
}
