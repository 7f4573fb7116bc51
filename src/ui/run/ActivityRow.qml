import QtQuick
import Velmora

/// One line of the log: what became of the text, for whom, and when.
Item {
    id: row

    /// Whether the keyboard stands on the row.
    property bool current: false

    required property int index
    required property activityEntry entry

    implicitHeight: words.height + 12
    // The list hides a spare row from the eye alone, not from a screen reader.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true
    Accessible.role: Accessible.ListItem
    Accessible.focused: current
    Accessible.name: entry.name + ", " + entry.details + ", " + entry.clockTime

    MouseArea {
        anchors.fill: parent
        preventStealing: true
    }
    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: 4
        anchors.rightMargin: 4
        radius: Theme.radius
        visible: row.current
        color: Theme.quaternary
    }
    HorizontalDivider {
        x: words.x
        width: row.width - x - 10
        visible: row.index > 0
    }
    SymbolIcon {
        id: icon
        x: 10
        y: 6
        name: row.entry.symbol
        size: 15
        color: Theme.colorOf(row.entry.tone, false)
    }
    Column {
        id: words
        anchors.verticalCenter: parent.verticalCenter
        x: icon.x + icon.width + 8
        width: row.width - x - 10
        spacing: 2

        BodyText {
            width: time.x - words.x - 8
            horizontalAlignment: Text.AlignLeft
            text: row.entry.name
            Accessible.ignored: true
        }
        CaptionText {
            width: parent.width
            visible: text.length > 0
            text: row.entry.details
            Accessible.ignored: true
        }
    }
    FixedDigitsText {
        id: time
        x: row.width - width - 10
        y: 8
        text: row.entry.clockTime
        Accessible.ignored: true
        color: Theme.secondary
        pixelSize: Theme.caption
    }
}
