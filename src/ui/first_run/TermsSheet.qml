pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Velmora

/// The terms, before the first use. Only agreeing or quitting ends it.
SheetFrame {
    id: sheet

    required property FirstRunModel firstRun

    title: "Before you send"
    defaultWidth: 480
    spacing: 14
    buttonSpacing: 20
    onAccepted: firstRun.acceptTerms()
    onCancelled: firstRun.quit()

    BodyText {
        Layout.fillWidth: true
        text: "Velmora sends your own texts, from your own number, to people you know. It's for the same message to friends and family without starting a group chat."
    }
    BodyText {
        Layout.fillWidth: true
        text: "By continuing you confirm that:"
        font.weight: Font.Medium
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 10

        Repeater {
            model: [
                "You will text only people you know personally, who would expect to hear from you.",
                "You will not use Velmora for advertising, sales, promotions, or marketing of any kind.",
                "You will stop texting anyone who asks you to.",
                "You are responsible for the messages you send and for following the laws that apply to them."
            ]

            RowLayout {
                id: point
                required property string modelData

                spacing: 8

                BodyText {
                    Layout.alignment: Qt.AlignBaseline
                    text: "\u2022"
                    Accessible.ignored: true
                }
                BodyText {
                    Layout.fillWidth: true
                    Layout.alignment: Qt.AlignBaseline
                    text: point.modelData
                }
            }
        }
    }
    PushButton {
        text: "Read the full terms of use"
        kind: PushButton.Link
        Accessible.role: Accessible.Link
        onClicked: sheet.firstRun.openTerms()
    }

    buttons: [
        PushButton {
            text: "Quit"
            controlSize: PushButton.Large
            onClicked: sheet.cancelled()
        },
        PushButton {
            text: "I Agree"
            kind: PushButton.Prominent
            controlSize: PushButton.Large
            onClicked: sheet.accepted()
        }
    ]
}
