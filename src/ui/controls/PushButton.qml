pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velmora

/// A button with a title, a symbol or both: bordered, prominent, destructive, or plain as a link.
T.AbstractButton {
    id: button

    enum Kind { Bordered, Prominent, Link, Destructive, Plain }
    enum ControlSize { Regular, Small, Large }

    property int kind: PushButton.Bordered
    property int controlSize: PushButton.Regular
    property string symbol
    property bool leading: false
    property string help
    property int fontSize: controlSize === PushButton.Small ? Theme.caption : Theme.body
    property color tint: prominent ? (enabled ? Theme.overAccent : Theme.tertiary)
                         : kind === PushButton.Destructive ? Theme.destructive
                         : kind === PushButton.Link ? Theme.accentText : Theme.primary

    readonly property bool prominent: kind === PushButton.Prominent
    readonly property bool framed: kind !== PushButton.Link && kind !== PushButton.Plain
    readonly property int faceHeight: controlSize === PushButton.Large
                                      ? Theme.largeControlHeight
                                      : controlSize === PushButton.Small
                                        ? Theme.smallControlHeight : Theme.controlHeight

    implicitWidth: Math.max(framed && text.length > 0 ? 64 : 0,
                            face.implicitWidth + leftPadding + rightPadding)
    implicitHeight: framed ? faceHeight : Math.max(16, face.implicitHeight + 2)
    leftPadding: framed ? (controlSize === PushButton.Small ? 8 : 14) : 0
    rightPadding: leftPadding
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    opacity: enabled || prominent ? 1 : Theme.disabledOpacity
    Accessible.name: text
    Accessible.description: enabled ? help : Theme.unavailable
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: event => PlainReturn.take(event, clicked)
    Keys.onEnterPressed: event => PlainReturn.take(event, clicked)

    HoverHandler {
        cursorShape: button.kind === PushButton.Link ? Qt.PointingHandCursor : Qt.ArrowCursor
    }

    HelpTip {
        text: button.help
        wanted: button.hovered && !button.down
    }

    Item {
        id: face
        anchors.fill: parent
        anchors.topMargin: button.topInset
        anchors.leftMargin: button.leftPadding
        anchors.rightMargin: button.rightPadding
        implicitWidth: words.implicitWidth + icon.space
        implicitHeight: words.implicitHeight

        Item {
            id: line
            readonly property real wordsWidth: Math.min(words.implicitWidth,
                                                        parent.width - icon.space)
            x: button.leading ? 0 : Math.round((parent.width - width) / 2)
            width: icon.space + wordsWidth
            height: parent.height
            opacity: !button.framed && button.down ? 0.6 : 1

            SymbolIcon {
                id: icon
                readonly property real space: button.symbol.length === 0
                                              ? 0 : size + (button.text.length > 0 ? 5 : 0)
                y: Math.round((parent.height - height) / 2)
                name: button.symbol
                size: button.fontSize + 3
                color: button.tint
                visible: name.length > 0
            }

            LineText {
                id: words
                x: icon.space
                width: line.wordsWidth
                height: parent.height
                verticalAlignment: Text.AlignVCenter
                text: button.text
                color: button.tint
                font.pixelSize: button.fontSize
                font.underline: button.kind === PushButton.Link && button.hovered && button.enabled
                Accessible.ignored: true
            }
        }
    }

    background: Item {
        ControlSurface {
            anchors.fill: parent
            visible: button.framed
            prominent: button.prominent && button.enabled
            flat: button.prominent && !button.enabled
            pressed: button.down
            hovered: button.hovered
        }
        FocusRing {
            shown: button.visualFocus
            anchors.margins: button.framed ? -Theme.focusRingWidth : -Theme.focusRingWidth - 1
        }
    }
}
