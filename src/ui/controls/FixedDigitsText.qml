pragma ComponentBehavior: Bound
import QtQuick
import Velmora

/// One line of text whose digits all take the same width, so that numbers stand under each other
/// and don't jump while they count.
Row {
    id: line

    property string text
    property color color: Theme.primary
    property int pixelSize: Theme.body

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    TextMetrics {
        id: digit
        font.family: Theme.fontFamily
        font.pixelSize: line.pixelSize
        text: "0"
    }

    Repeater {
        model: line.text.split("")

        BodyText {
            required property string modelData

            width: modelData >= "0" && modelData <= "9" ? digit.advanceWidth : implicitWidth
            text: modelData
            color: line.color
            font.pixelSize: line.pixelSize
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.NoWrap
            Accessible.ignored: true
        }
    }
}
