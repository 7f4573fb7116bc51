import QtQuick
import Velmora

/// The number of a person and the line that the conversation with them runs on.
Column {
    id: line

    required property recipientEntry entry
    property real maximumWidth

    width: Math.min(maximumWidth, Math.max(150, implicitWidth))
    spacing: 3
    // The number's line of type and the larger name's stand on one height.
    topPadding: 1

    FixedDigitsText {
        anchors.right: parent.right
        visible: text.length > 0
        text: line.entry.phone
        pixelSize: Theme.callout
    }
    BodyText {
        anchors.right: parent.right
        visible: text.length > 0
        width: Math.min(implicitWidth, line.maximumWidth)
        text: line.entry.phoneLabel
        color: Theme.colorOf(Look.Tone.secondary, line.entry.faint)
        font.pixelSize: Theme.caption
        wrapMode: Text.NoWrap
        elide: Text.ElideMiddle
    }
    Row {
        anchors.right: parent.right
        visible: line.entry.thread.text.length > 0
        spacing: 4

        SymbolIcon {
            id: symbol
            visible: line.entry.thread.symbol.length > 0
            anchors.verticalCenter: parent.verticalCenter
            name: line.entry.thread.symbol
            size: Theme.caption + 2
            color: Theme.colorOf(line.entry.thread.symbolTone, line.entry.faint)
        }
        BodyText {
            width: Math.min(implicitWidth,
                            line.maximumWidth - (symbol.visible ? symbol.width + 4 : 0))
            text: line.entry.thread.text
            Accessible.name: line.entry.thread.spoken
            color: Theme.colorOf(line.entry.thread.textTone, line.entry.faint)
            font.pixelSize: Theme.caption
            wrapMode: Text.NoWrap
            elide: Text.ElideMiddle
        }
    }
}
