pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Velmora

/// The choice of the number to send from, or what to do when none was found.
SheetFrame {
    id: sheet

    required property FirstRunModel firstRun

    title: "Which number do you text from?"
    defaultWidth: 440
    spacing: 16
    onAccepted: if (!firstRun.numbersFound) firstRun.checkAgain()
    onCancelled: firstRun.chooseLater()

    BodyText {
        Layout.fillWidth: true
        text: sheet.firstRun.senderText
        color: Theme.secondary
    }
    BodyText {
        Layout.fillWidth: true
        visible: text.length > 0
        text: sheet.firstRun.checkedText
        color: Theme.secondary
        font.pixelSize: Theme.callout
    }
    ColumnLayout {
        Layout.fillWidth: true
        visible: sheet.firstRun.numbersFound
        spacing: 8

        Repeater {
            model: sheet.firstRun.numbers

            PushButton {
                required property string modelData
                required property int index

                Layout.fillWidth: true
                text: modelData
                symbol: "iphone"
                controlSize: PushButton.Large
                leading: true
                onClicked: sheet.firstRun.chooseNumber(index)
            }
        }
    }

    buttons: [
        PushButton {
            visible: !sheet.firstRun.numbersFound
            text: "Open Messages"
            controlSize: PushButton.Large
            onClicked: sheet.firstRun.openMessages()
        },
        PushButton {
            visible: !sheet.firstRun.numbersFound
            text: "Check Again"
            kind: PushButton.Prominent
            controlSize: PushButton.Large
            onClicked: sheet.accepted()
        },
        PushButton {
            text: "Choose Later"
            controlSize: PushButton.Large
            onClicked: sheet.cancelled()
        }
    ]
}
