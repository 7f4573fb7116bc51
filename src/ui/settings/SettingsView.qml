pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Velmora

/// The settings: the number to send from, the pacing, and a test message.
FocusScope {
    id: view

    required property SettingsModel settings

    component RunRow: FormRow {
        enabled: !view.settings.locked
    }
    component Word: BodyText {
        opacity: enabled ? 1 : Theme.disabledOpacity
    }

    implicitWidth: 500
    implicitHeight: form.implicitHeight + 40
    focus: true

    ColumnLayout {
        id: form
        x: 20
        y: 20
        width: view.width - 40
        spacing: 20

        FormSection {
            Layout.fillWidth: true
            title: "Sending number"
            footer: "Your iPhone picks the line for SMS. Velmora checks every send against this number and pauses if one goes out on the other line."

            RunRow {
                title: "Send from"

                ChoicePicker {
                    Layout.maximumWidth: 350
                    options: view.settings.senderOptions
                    currentIndex: view.settings.senderIndex
                    accessibleName: "Send from"
                    onChosen: index => view.settings.chooseSender(index)
                }
            }
            FormNote {
                visible: view.settings.numbersMissing
                text: "Velmora found no number on this Mac. In Messages, choose Settings, then iMessage, and tick your phone number."
            }
        }

        FormSection {
            Layout.fillWidth: true
            title: "Pacing"
            footer: "Texts go out one at a time, like you'd send them yourself, and only during the hours you set. A run stops on its own if something looks wrong."

            RunRow {
                title: "Wait between texts"

                NumberEntry {
                    value: view.settings.delayMin
                    accessibleName: "Shortest wait between texts in seconds"
                    onValueEdited: value => view.settings.delayMin = value
                }
                Word { text: "to" }
                NumberEntry {
                    value: view.settings.delayMax
                    accessibleName: "Longest wait between texts in seconds"
                    onValueEdited: value => view.settings.delayMax = value
                }
                Word { text: "seconds" }
            }
            FormDivider {}
            RunRow {
                title: "Send between"

                ClockPicker {
                    hour: view.settings.startHour
                    minute: view.settings.startMinute
                    accessibleName: "From"
                    onPicked: (hour, minute) => view.settings.setStart(hour, minute)
                }
                Word { text: "and" }
                ClockPicker {
                    hour: view.settings.endHour
                    minute: view.settings.endMinute
                    accessibleName: "Until"
                    onPicked: (hour, minute) => view.settings.setEnd(hour, minute)
                }
            }
            FormDivider {}
            RunRow {
                NumberStepper {
                    Layout.fillWidth: true
                    value: view.settings.maxFailures
                    from: view.settings.fewestFailures
                    to: view.settings.mostFailures
                    text: view.settings.failuresText
                    onChanged: value => view.settings.maxFailures = value
                }
            }
        }

        FormSection {
            Layout.fillWidth: true
            title: "Test message"
            footer: "Sends one text and reports which line it went out on."

            FormRow {
                title: "Number"

                TextEntry {
                    Layout.preferredWidth: 240
                    text: view.settings.testPhone
                    placeholder: "Your other number, or a friend's"
                    accessibleName: "Number"
                    onEdited: text => view.settings.testPhone = text
                }
                PushButton {
                    text: "Send Test"
                    enabled: view.settings.canSendTest
                    onClicked: view.settings.sendTest()
                }
            }
            FormNote {
                text: view.settings.testResult
            }
        }
    }
}
