import QtQuick
import Velmora

/// A symbol and the text that it stands for, side by side.
Item {
    id: label

    property string text
    property string symbol
    property color textColor: Theme.primary
    property color symbolColor: textColor
    property int fontSize: Theme.body
    property int spacing: 5

    implicitWidth: Math.ceil(words.x + words.implicitWidth)
    implicitHeight: words.implicitHeight
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    SymbolIcon {
        y: Math.round((words.firstLineHeight - height) / 2)
        name: label.symbol
        size: label.fontSize + 2
        color: label.symbolColor
    }
    BodyText {
        id: words
        readonly property real firstLineHeight: lineCount > 0 ? contentHeight / lineCount : 0
        x: label.fontSize + 2 + label.spacing
        width: label.width - x
        text: label.text
        color: label.textColor
        font.pixelSize: label.fontSize
        Accessible.ignored: true
    }
}
