import QtQuick
import Velmora

/// What a column shows when it has nothing to show: a symbol, a heading, a sentence and at most one
/// button.
Item {
    id: empty

    required property string icon
    required property string title
    required property string message
    property string button
    /// How much of the column lies above. Two of these side by side have their symbols on one line.
    property real above: 0

    signal activated

    Column {
        x: Theme.sheetPadding
        y: Math.max(0, Math.round((parent.height + empty.above) / 2 - 64 - empty.above))
        width: parent.width - 2 * Theme.sheetPadding
        spacing: 4

        SymbolIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            name: empty.icon
            size: 42
            weight: "light"
            color: Theme.emblem
        }
        BodyText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: empty.title
            font.pixelSize: Theme.title3
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        BodyText {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(340, parent.width)
            horizontalAlignment: Text.AlignHCenter
            text: empty.message
            color: Theme.secondary
            font.pixelSize: Theme.callout
        }
        PushButton {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: empty.button.length > 0
            topInset: 2
            implicitHeight: faceHeight + topInset
            text: empty.button
            onClicked: empty.activated()
        }
    }
}
