import QtQuick
import QtQuick.Layouts
import Velmora

/// The number that the message goes out from.
ColumnLayout {
    id: section

    required property ComposeModel model

    spacing: 8

    BodyText {
        text: "Send from"
        font.pixelSize: Theme.headline
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
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
