pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Velmora

/// The right column: the message, the number it goes out from, and the run.
Item {
    id: pane

    required property ComposeModel compose
    required property RunModel run
    required property ActivityModel activity

    /// Whether the log has its place, which it has from the start of a run: its first line moves
    /// nothing.
    readonly property bool steady: run.showsActivity || run.stage !== RunModel.Stage.ready

    EmptyState {
        anchors.fill: parent
        visible: !pane.compose.showsComposer
        icon: "text.bubble"
        title: "Your message"
        message: "Choose a list to write the message and send it."
    }

    // Scrolls where the window is too low for all that a run shows.
    Flickable {
        id: flick
        anchors.fill: parent
        visible: pane.compose.showsComposer
        contentHeight: column.height + 32
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        T.ScrollBar.vertical: SlimScrollBar {}

        ColumnLayout {
            id: column
            x: 16
            y: 16
            width: flick.width - 32
            height: Math.max(flick.height - 32, implicitHeight - message.spare)
            spacing: 18

            MessageSection {
                id: message
                Layout.fillWidth: true
                model: pane.compose
                steady: pane.steady
            }
            SenderSection {
                Layout.fillWidth: true
                Layout.fillHeight: false
                model: pane.compose
            }
            SendSection {
                Layout.fillWidth: true
                Layout.fillHeight: false
                model: pane.run
            }
            Item {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.minimumHeight: pane.steady ? log.implicitHeight : 0

                ActivityView {
                    id: log
                    anchors.fill: parent
                    visible: pane.run.showsActivity
                    model: pane.activity
                }
            }
        }
    }
}
