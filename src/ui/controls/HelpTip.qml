import QtQuick
import QtQuick.Templates as T
import Velmora

/// The short help that appears when the pointer rests on a control.
T.ToolTip {
    id: tip

    property bool wanted: false

    visible: wanted && text.length > 0
    delay: Theme.helpDelay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? parent.height + 6 : 0
    margins: 6
    padding: 4
    leftPadding: 7
    rightPadding: 7
    implicitWidth: Math.min(280, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    contentItem: BodyText {
        text: tip.text
        font.pixelSize: Theme.caption
    }
    background: Rectangle {
        radius: Theme.tinyRadius
        color: Theme.menuBackground
        border.color: Theme.controlBorder
    }
}
