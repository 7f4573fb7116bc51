import QtQuick
import QtQuick.Layouts
import Velmora

/// The number that the message goes out from.
ColumnLayout {
    id: section

    required property ComposeModel model

    spacing: 8

    SectionHeading { text: "Send from" }
    MenuButton {
        Layout.fillWidth: true
        enabled: !section.model.locked
        symbol: "iphone"
        text: section.model.senderTitle
        help: "The number your texts come from"
        entries: section.model.senderEntries
        marksColumn: true
        markedIndex: section.model.senderIndex
        onChosen: index => section.model.chooseSender(index)
    }
}
