pragma ComponentBehavior: Bound
import QtQuick
import Velmora

/// One person: the check box, who they are with what they will receive, and their number with its
/// conversation.
FocusScope {
    id: row

    required property RecipientsModel recipients
    required property int index
    required property recipientEntry entry

    readonly property bool current: ListView.isCurrentItem

    /// The row becomes the current one.
    signal activated
    /// The keyboard is in the row's note, which must be seen whole.
    signal written
    /// The row gives the keyboard back to its list.
    signal taken

    function enterNote(): bool {
        return noteLine.enter();
    }
    function reachNote(): bool {
        return noteLine.reach();
    }
    function leave() {
        noteLine.focus = false;
        passage.focus = false;
    }
    function take() {
        leave();
        activated();
        taken();
    }

    implicitHeight: Math.max(words.height, line.height, box.height + 1) + 10
                    + content.headingHeight
    onCurrentChanged: if (!current) leave()
    onHeightChanged: if (noteLine.activeFocus) written()
    // The list hides a spare row from the eye alone, not from a screen reader.
    ListView.onPooled: {
        leave();
        visible = false;
    }
    ListView.onReused: visible = true
    Accessible.role: Accessible.ListItem
    Accessible.name: entry.spoken
    Accessible.focusable: true
    Accessible.focused: activeFocus
    Accessible.onPressAction: recipients.toggle(index)

    // One row alone has one.
    MadeWhenWanted {
        id: heading
        wanted: row.entry.heading.length > 0

        BodyText {
            x: Theme.padding
            width: row.width - 2 * x
            topPadding: 14
            bottomPadding: 6
            text: row.entry.heading
            color: Theme.secondary
            font.pixelSize: Theme.callout
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
    }
    MouseArea {
        anchors.fill: parent
        preventStealing: true
        onPressed: row.take()
    }
    Rectangle {
        anchors.fill: parent
        anchors.topMargin: content.headingHeight
        anchors.leftMargin: 8
        anchors.rightMargin: 8
        radius: Theme.radius
        color: row.current && row.activeFocus ? Theme.quaternary : "transparent"
        border.width: ring ? 2 : 0
        border.color: Theme.focusRing

        readonly property bool ring: row.activeFocus && !noteLine.activeFocus
                                     && !passage.activeFocus
    }
    HorizontalDivider {
        visible: row.index > 0 && heading.item === null
        x: words.x + content.x
        width: row.width - x - content.anchors.rightMargin
    }

    Item {
        id: content

        readonly property real headingHeight: heading.item !== null ? heading.item.height : 0

        anchors.fill: parent
        anchors.leftMargin: Theme.padding
        // In a very wide window the number stays near the name.
        anchors.rightMargin: Math.max(Theme.padding, row.width - Theme.padding - Theme.widestRow)
        anchors.topMargin: 5 + headingHeight
        opacity: row.entry.faint ? Theme.faintOpacity : 1

        TickBox {
            id: box
            y: 1
            activeFocusOnTab: false
            checked: row.entry.checked
            enabled: row.entry.checkable
            accessibleName: row.entry.checkName
            onToggled: checked => row.recipients.setChecked(row.index, checked)
        }

        Column {
            id: words
            x: box.width + 12
            width: content.width - x - 12 - line.width
            spacing: 3

            RecipientName {
                width: parent.width
                entry: row.entry
            }
            LabelWithSymbol {
                width: parent.width
                visible: text.length > 0
                text: row.entry.issue.text
                symbol: row.entry.issue.symbol
                textColor: Theme.colorOf(row.entry.issue.textTone, row.entry.faint)
                symbolColor: Theme.colorOf(row.entry.issue.symbolTone, row.entry.faint)
                fontSize: Theme.callout
            }
            SelectableText {
                id: passage
                width: parent.width
                visible: text.length > 0
                text: row.entry.preview
                color: Theme.colorOf(Look.Tone.secondary, row.entry.faint)
                lines: 3
                onEntered: row.activated()
            }
            NoteLine {
                id: noteLine
                width: parent.width
                visible: showsField || showsOffer
                linkColor: Theme.colorOf(Look.Tone.accent, row.entry.faint)
                placeholderColor: Theme.colorOf(Look.Tone.tertiary, row.entry.faint)
                note: row.entry.note
                showsField: row.entry.showsNote
                showsOffer: row.entry.offersNote
                fieldEnabled: row.recipients.enabled
                onEntered: {
                    row.recipients.editNote(row.index);
                    row.activated();
                    row.written();
                }
                onEdited: text => row.recipients.setNote(row.index, text)
                onFinished: row.take()
            }
        }

        RecipientLine {
            id: line
            anchors.right: parent.right
            entry: row.entry
            maximumWidth: content.width / 2
        }
    }
}
