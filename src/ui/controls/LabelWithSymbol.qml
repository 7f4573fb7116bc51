import QtQuick
import QtQuick.Layouts
import Velmora

/// A symbol and the text that it stands for, side by side.
RowLayout {
    id: label

    property string text
    property string symbol
    property color textColor: Theme.primary
    property color symbolColor: textColor
    property int fontSize: Theme.body

    spacing: 5
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    SymbolIcon {
        Layout.alignment: Qt.AlignTop
        Layout.topMargin: Math.round((words.firstLineHeight - height) / 2)
        name: label.symbol
        size: label.fontSize + 2
        color: label.symbolColor
    }
    BodyText {
        id: words
        readonly property real firstLineHeight: lineCount > 0 ? contentHeight / lineCount : 0
        Layout.fillWidth: true
        text: label.text
        color: label.textColor
        font.pixelSize: label.fontSize
        Accessible.ignored: true
    }
}
