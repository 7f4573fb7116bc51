pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Velmora

/// The right column: the message, the number it goes out from, and the run.
Item {
    id: pane

    required property ComposeModel model
    required property ActivityModel activity

    EmptyState {
        anchors.fill: parent
        visible: !pane.model.showsComposer
        icon: "text.bubble"
        title: "Your message"
        message: "Choose a list to write the message and send it."
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 16
        visible: pane.model.showsComposer
        spacing: 18

        MessageSection {
            Layout.fillWidth: true
            model: pane.model
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
                onChosen: index => pane.model.chooseSender(index)
            }
        }
        SendSection {
            Layout.fillWidth: true
            Layout.fillHeight: false
            model: pane.model
        }
        ActivityView {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.minimumHeight: implicitHeight
            visible: pane.model.showsActivity
            model: pane.activity
        }
        Item {
            Layout.fillHeight: true
            visible: !pane.model.showsActivity
        }
    }
}
