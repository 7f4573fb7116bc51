import QtQuick
import Velmora

/// The number of a person and the line that the conversation with them runs on.
Column {
    id: line

    property string phone
    property string phoneLabel
    property string threadText
    property color threadTextColor
    property string threadSymbol
    property color threadSymbolColor

    width: Math.max(150, implicitWidth)
    spacing: 3

    FixedDigitsText {
        anchors.right: parent.right
        visible: text.length > 0
        text: line.phone
        pixelSize: Theme.callout
    }
    BodyText {
        anchors.right: parent.right
        visible: text.length > 0
        text: line.phoneLabel
        color: Theme.secondary
        font.pixelSize: Theme.caption
    }
    Row {
        anchors.right: parent.right
        visible: line.threadText.length > 0
        spacing: 4

        SymbolIcon {
            visible: line.threadSymbol.length > 0
            anchors.verticalCenter: parent.verticalCenter
            name: line.threadSymbol
            size: Theme.caption + 2
            color: line.threadSymbolColor
        }
        BodyText {
            text: line.threadText
            color: line.threadTextColor
            font.pixelSize: Theme.caption
        }
    }
}
