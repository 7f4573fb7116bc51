pragma ComponentBehavior: Bound
import QtQuick
import Velmora

/// Who a person is: the name, the company beside it, and whether they have been sent the text. What
/// the line has no room for is taken from the company first, and never from the last.
Item {
    id: line

    required property recipientEntry entry

    readonly property int gap: 6
    readonly property real nameWidth: nameText.truncated ? nameText.width : nameText.contentWidth
    readonly property real room: width - (sent.item ? sent.item.width + gap : 0)

    implicitHeight: nameText.implicitHeight

    LineText {
        id: nameText
        // Not what the name takes, which would have each name laid out twice.
        width: Math.max(0, line.room)
        text: line.entry.name
        font.pixelSize: Theme.headline
        font.weight: Font.DemiBold
    }
    LineText {
        id: companyText
        x: line.nameWidth + line.gap
        width: Math.max(0, Math.min(implicitWidth, line.room - x))
        visible: text.length > 0 && line.room - x > 2 * Theme.body
        text: line.entry.company
        color: Theme.colorOf(Look.Tone.secondary, line.entry.faint)
    }
    // Most rows have none.
    MadeWhenWanted {
        id: sent
        wanted: line.entry.sentText.length > 0

        LabelWithSymbol {
            x: (companyText.visible ? companyText.x + companyText.width : line.nameWidth) + line.gap
            y: (nameText.height - height) / 2
            width: implicitWidth
            text: line.entry.sentText
            symbol: "checkmark.seal.fill"
            textColor: Theme.colorOf(Look.Tone.green, line.entry.faint)
            fontSize: Theme.caption
            spacing: 4
        }
    }
}
