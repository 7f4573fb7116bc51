import QtQuick
import QtQuick.Layouts
import Velmora

/// The main window's content: the sidebar, and beside it the list and the composer.
UnspokenArea {
    id: content

    required property Presentation presentation
    /// Whether title and subtitle are shown here.
    property bool titled: true

    readonly property int headerHeight: titled ? header.height : 0
    readonly property int detailMinimum: 380
    readonly property int composeWidth: 340
    readonly property int sidebarMinimum: 200
    readonly property int sidebarMaximum: Math.min(300, width - detailMinimum - composeWidth - 2)
    property int chosenSidebarWidth: 230
    readonly property int sidebarWidth: Math.max(sidebarMinimum,
                                                 Math.min(sidebarMaximum, chosenSidebarWidth))

    Accessible.ignored: presentation.window.commandsEnabled

    RowLayout {
        anchors.fill: parent
        spacing: 0

        SidebarView {
            Layout.fillHeight: true
            Layout.preferredWidth: content.sidebarWidth
            Layout.minimumWidth: content.sidebarWidth
            model: content.presentation.sidebar
        }
        SplitHandle {
            Layout.fillHeight: true
            z: 1
            value: content.sidebarWidth
            from: content.sidebarMinimum
            to: content.sidebarMaximum
            onMoved: value => content.chosenSidebarWidth = value
        }
        ColumnLayout {
            spacing: 0

            DetailHeader {
                id: header
                Layout.fillWidth: true
                visible: content.titled
                title: content.presentation.window.title
                subtitle: content.presentation.window.subtitle
            }
            RowLayout {
                Layout.fillWidth: true
                Layout.fillHeight: true
                spacing: 0

                DetailView {
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    Layout.minimumWidth: content.detailMinimum
                    presentation: content.presentation
                }
                VerticalDivider {
                    Layout.fillHeight: true
                }
                ComposePane {
                    Layout.preferredWidth: content.composeWidth
                    Layout.minimumWidth: content.composeWidth
                    Layout.maximumWidth: content.composeWidth
                    Layout.fillHeight: true
                    compose: content.presentation.compose
                    run: content.presentation.run
                    activity: content.presentation.activity
                }
            }
        }
    }
}
