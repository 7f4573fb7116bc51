import QtQuick
import QtQuick.Layouts
import Velmora

/// The message of the chosen list and what can be inserted into it.
ColumnLayout {
    id: section

    required property ComposeModel model

    /// Whether the editor keeps the height it would like, and leaves all other room to the rest.
    property bool steady: false
    /// By how much the section can be lower than it would like.
    readonly property int spare: 200 - 140

    spacing: 8

    SectionHeading { text: "Message" }
    MessageEditor {
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.minimumHeight: 140
        Layout.preferredHeight: 200
        Layout.maximumHeight: section.steady ? 200 : 280
        enabled: !section.model.locked
        accessibleName: "Message"
        text: section.model.message
        subject: section.model.subject
        onEdited: text => section.model.setMessage(text)
    }
    RowLayout {
        Layout.fillWidth: true
        spacing: 12

        MenuButton {
            borderless: true
            enabled: !section.model.locked
            symbol: "plus.circle"
            text: "Insert"
            entries: section.model.insertEntries
            onChosen: index => section.model.insert(index)
        }
        CaptionText {
            Layout.fillWidth: true
            text: section.model.hint
        }
    }
}
