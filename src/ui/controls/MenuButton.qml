pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Velmora

/// A button that opens a menu of actions, or of choices with a mark on the one at `markedIndex`. An
/// entry is a text or `{text, separator, enabled}`; its place in `entries` is told by
/// `chosen`.
MenuOpener {
    id: button

    property string symbol
    property bool borderless: false
    property string help
    property var entries: []
    property bool marksColumn: false
    property int markedIndex: -1
    property int fontSize: Theme.body
    readonly property int leftPadding: borderless ? 0 : 9
    readonly property int rightPadding: borderless ? 0 : 7

    signal chosen(int index)

    implicitWidth: line.implicitWidth + leftPadding + rightPadding
    implicitHeight: borderless ? 20 : Theme.controlHeight
    menu: popup
    Accessible.role: Accessible.ButtonMenu
    Accessible.name: text
    Accessible.description: enabled && filled ? help : Theme.unavailable

    PopupMenu {
        id: popup
        y: button.height + (button.borderless ? 7 : 3)
        width: Math.max(implicitWidth, button.borderless ? 0 : button.width)
        entries: button.entries
        marksColumn: button.marksColumn
        markedIndex: button.markedIndex
        onChosen: index => button.chosen(index)
    }

    HelpTip {
        text: button.help
        wanted: button.hovered && !popup.visible
    }

    ControlSurface {
        anchors.fill: parent
        visible: !button.borderless
        enabled: button.filled
        pressed: popup.visible
        hovered: button.hovered
    }
    FocusRing { shown: button.activeFocus }

    RowLayout {
        id: line
        anchors.fill: parent
        anchors.leftMargin: button.leftPadding
        anchors.rightMargin: button.rightPadding
        spacing: 5
        opacity: button.borderless && popup.visible ? 0.6 : 1

        SymbolIcon {
            visible: button.symbol.length > 0
            name: button.symbol
            size: button.fontSize + 3
        }
        LineText {
            Layout.fillWidth: true
            text: button.text
            font.pixelSize: button.fontSize
            Accessible.ignored: true
        }
        SymbolIcon {
            name: "chevron.down"
            size: 10
            color: Theme.secondary
        }
    }
}
