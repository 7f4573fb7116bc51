pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Velmora

/// The right column: the message, the number it goes out from, and the run.
Item {
    id: pane

    required property ComposeModel model
    required property ActivityModel activity

    /// Whether the log has its place, which it has from the start of a run: its first line moves
    /// nothing.
    readonly property bool steady: model.showsActivity || model.stage !== ComposeModel.Stage.ready

    EmptyState {
        anchors.fill: parent
        visible: !pane.model.showsComposer
        icon: "text.bubble"
        title: "Your message"
        message: "Choose a list to write the message and send it."
    }

    // Scrolls where the window is too low for all that a run shows.
    Flickable {
        id: flick
        anchors.fill: parent
        visible: pane.model.showsComposer
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
                model: pane.model
                steady: pane.steady
            }
            ColumnLayout {
                Layout.fillWidth: true
                Layout.fillHeight: false
                spacing: 8

                BodyText {
                    text: "Send from"
                    font.pixelSize: Theme.headline
                    font.weight: Font.DemiBold
                    Accessible.role: Accessible.Heading
                }
                MenuButton {
                    Layout.fillWidth: true
                    enabled: !pane.model.locked
                    symbol: "iphone"
                    text: pane.model.senderTitle
                    help: "The number your texts come from"
                    entries: pane.model.senderEntries
                    marksColumn: true
                    markedIndex: pane.model.senderIndex
                    onChosen: index => pane.model.chooseSender(index)
                }
            }
            SendSection {
                Layout.fillWidth: true
                Layout.fillHeight: false
                model: pane.model
            }
            Item {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.minimumHeight: pane.steady ? log.implicitHeight : 0

                ActivityView {
                    id: log
                    anchors.fill: parent
                    visible: pane.model.showsActivity
                    model: pane.activity
                }
            }
        }
    }
}
