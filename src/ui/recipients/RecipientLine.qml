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
    property color labelColor
    property real maximumWidth

    width: Math.min(maximumWidth, Math.max(150, implicitWidth))
    spacing: 3
    // The number's line of type and the larger name's stand on one height.
    topPadding: 1

    FixedDigitsText {
        anchors.right: parent.right
        visible: text.length > 0
        text: line.phone
        pixelSize: Theme.callout
    }
    BodyText {
        anchors.right: parent.right
        visible: text.length > 0
        width: Math.min(implicitWidth, line.maximumWidth)
        text: line.phoneLabel
        color: line.labelColor
        font.pixelSize: Theme.caption
        wrapMode: Text.NoWrap
        elide: Text.ElideMiddle
    }
    Row {
        anchors.right: parent.right
        visible: line.threadText.length > 0
        spacing: 4

        SymbolIcon {
            id: symbol
            visible: line.threadSymbol.length > 0
            anchors.verticalCenter: parent.verticalCenter
            name: line.threadSymbol
            size: Theme.caption + 2
            color: line.threadSymbolColor
        }
        BodyText {
            width: Math.min(implicitWidth,
                            line.maximumWidth - (symbol.visible ? symbol.width + 4 : 0))
            text: line.threadText
            color: line.threadTextColor
            font.pixelSize: Theme.caption
            wrapMode: Text.NoWrap
            elide: Text.ElideMiddle
        }
    }
}
