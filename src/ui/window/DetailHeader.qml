import QtQuick
import Velmora

/// The head of the window's detail area: the list's name and how many are checked.
Item {
    id: header

    required property string title
    required property string subtitle

    implicitHeight: 52

    Column {
        anchors.verticalCenter: parent.verticalCenter
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Theme.padding
        anchors.rightMargin: Theme.padding
        spacing: 1

        LineText {
            width: parent.width
            text: header.title
            font.pixelSize: Theme.title3
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        CaptionText {
            width: parent.width
            visible: text.length > 0
            text: header.subtitle
            wrapMode: Text.NoWrap
            elide: Text.ElideRight
        }
    }

    HorizontalDivider {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
