import QtQuick
import QtQuick.Layouts
import Velmora

/// The last step before a run: what will be sent, how fast, and under which name.
SheetFrame {
    id: sheet

    required property ConfirmModel model

    component RowLabel: BodyText {
        Layout.alignment: Qt.AlignRight
        color: Theme.secondary
    }

    title: model.title
    defaultWidth: 480
    onCancelled: model.cancel()
    onAccepted: model.startSending()

    ColumnLayout {
        Layout.fillWidth: true
        visible: sheet.model.exampleCaption.length > 0
        spacing: 6

        CaptionText {
            Layout.fillWidth: true
            text: sheet.model.exampleCaption
        }
        Rectangle {
            Layout.fillWidth: true
            implicitHeight: Math.min(240, example.implicitHeight + 24)
            radius: Theme.largeRadius
            color: Theme.quaternary

            ScrollArea {
                anchors.fill: parent
                inset: 12
                cornerRadius: parent.radius
                contentHeight: example.implicitHeight
                accessibleName: sheet.model.exampleCaption

                SelectableText {
                    id: example
                    width: parent.width - 11
                    height: implicitHeight
                    text: sheet.model.exampleText
                    color: Theme.primary
                    fontSize: Theme.body
                }
            }
        }
    }
    GridLayout {
        Layout.fillWidth: true
        columns: 2
        columnSpacing: 12
        rowSpacing: 10

        RowLabel { text: "From" }
        BodyText { text: sheet.model.from }
        RowLabel { text: "Pace" }
        BodyText {
            Layout.fillWidth: true
            text: sheet.model.pace
        }
        RowLabel { text: "Run name" }
        TextEntry {
            Layout.preferredWidth: 240
            accessibleName: "Run name"
            text: sheet.model.runName
            onEdited: text => sheet.model.setRunName(text)
        }
    }
    CaptionText {
        Layout.fillWidth: true
        text: "Keep your Mac open and your iPhone on until it finishes. Sending the same run again skips anyone already sent."
    }
    buttons: [
        PushButton {
            controlSize: PushButton.Large
            text: "Cancel"
            onClicked: sheet.model.cancel()
        },
        PushButton {
            focus: true
            kind: PushButton.Prominent
            controlSize: PushButton.Large
            text: "Start Sending"
            onClicked: sheet.model.startSending()
        }
    ]
}
