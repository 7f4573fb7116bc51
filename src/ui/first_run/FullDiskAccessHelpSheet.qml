pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Velmora

/// How to give Velmora access to the Messages history, in words and as an animation.
SheetFrame {
    id: sheet

    required property FirstRunModel firstRun

    title: "Velmora needs Full Disk Access"
    defaultWidth: 720
    spacing: 22
    buttonSpacing: 18
    onAccepted: firstRun.openSystemSettings()
    onCancelled: firstRun.notNow()

    BodyText {
        Layout.fillWidth: true
        text: "Messages keeps its history in a folder macOS protects. Velmora reads it to check which of your numbers each text goes out on, and it pauses a run if a text leaves on the wrong one. Nothing from Messages leaves your Mac."
        color: Theme.secondary
    }
    RowLayout {
        Layout.fillWidth: true
        spacing: 14

        ColumnLayout {
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignTop
            spacing: 16

            Repeater {
                model: [
                    "Click Open System Settings. It opens Privacy & Security, then Full Disk Access.",
                    "Turn on Velmora. If it isn't in the list, click the plus button and choose Velmora from Applications. macOS asks for your password or Touch ID.",
                    "When macOS asks, choose Quit & Reopen. Velmora starts again and finds your number."
                ]

                RowLayout {
                    id: step
                    required property string modelData
                    required property int index

                    spacing: 10

                    Rectangle {
                        Layout.alignment: Qt.AlignTop
                        implicitWidth: 22
                        implicitHeight: 22
                        radius: 11
                        color: Theme.accent

                        BodyText {
                            anchors.centerIn: parent
                            text: step.index + 1
                            color: Theme.overAccent
                            font.pixelSize: Theme.callout
                            font.weight: Font.DemiBold
                        }
                    }
                    BodyText {
                        Layout.fillWidth: true
                        Layout.alignment: Qt.AlignTop
                        Layout.topMargin: 3
                        text: step.modelData
                    }
                }
            }
        }
        FullDiskAccessAnimation {
            Layout.alignment: Qt.AlignTop
            firstRun: sheet.firstRun
        }
    }

    buttons: [
        PushButton {
            text: "Not Now"
            controlSize: PushButton.Large
            onClicked: sheet.cancelled()
        },
        PushButton {
            text: "Check Again"
            controlSize: PushButton.Large
            onClicked: sheet.firstRun.checkAgain()
        },
        PushButton {
            text: "Open System Settings"
            kind: PushButton.Prominent
            controlSize: PushButton.Large
            onClicked: sheet.accepted()
        }
    ]
}
