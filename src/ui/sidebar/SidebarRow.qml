import QtQuick
import Velmora

/// One list in the sidebar: symbol, name and how many people.
Item {
    id: row

    required property int index
    required property string name
    required property string symbol
    required property int count
    required property bool current
    required property bool focused

    readonly property bool lit: current && focused

    signal picked
    signal cleared

    implicitHeight: 28
    ListView.onPooled: visible = false
    ListView.onReused: visible = true
    Accessible.role: Accessible.ListItem
    Accessible.name: name + ", " + count
    Accessible.selectable: true
    Accessible.selected: current
    Accessible.onPressAction: row.picked()

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: 10
        anchors.rightMargin: 10
        radius: Theme.radius
        visible: row.current
        color: row.lit ? Theme.accent : Theme.quaternary
    }
    SymbolIcon {
        id: icon
        anchors.verticalCenter: parent.verticalCenter
        // Several persons side by side are wider than high.
        x: 13
        width: 28
        name: row.symbol
        size: 18
        color: row.lit ? Theme.overAccent : Theme.accentText
    }
    LineText {
        anchors.verticalCenter: parent.verticalCenter
        anchors.left: icon.right
        anchors.right: number.left
        anchors.leftMargin: 2
        anchors.rightMargin: Theme.gap
        text: row.name
        color: row.lit ? Theme.overAccent : Theme.primary
        Accessible.ignored: true
    }
    FixedDigitsText {
        id: number
        anchors.verticalCenter: parent.verticalCenter
        anchors.right: parent.right
        anchors.rightMargin: 18
        text: row.count
        color: row.lit ? Theme.overAccent : Theme.secondary
        Accessible.ignored: true
    }
    TapHandler {
        id: tap
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: {
            if (row.current && (tap.point.modifiers & Qt.ControlModifier))
                row.cleared();
            else
                row.picked();
        }
    }
}
