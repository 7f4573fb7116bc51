import QtQuick
import QtQuick.Layouts
import Velmora

/// One line of a pop-up menu: a choice with its mark, or a separator.
Item {
    id: row

    required property var modelData
    required property int index
    /// How far the line reaches in its menu, which is as wide as the widest.
    property real fullWidth: width
    property bool highlighted: false
    property bool marked: false
    property bool marksColumn: false

    readonly property bool separator: modelData.separator ?? false
    readonly property string title: separator ? "" : modelData.text ?? modelData
    readonly property string keys: modelData.keys ?? ""
    readonly property bool selectable: !separator && (modelData.enabled ?? true)
    readonly property color tint: highlighted ? Theme.overAccent
                                              : selectable ? Theme.primary : Theme.tertiary

    /// The pointer has clicked on it.
    signal clicked
    signal picked

    implicitWidth: separator ? 40 : line.implicitWidth + 2 * line.x
    implicitHeight: separator ? 11 : 24
    Accessible.ignored: separator
    Accessible.role: Accessible.MenuItem
    Accessible.name: title
    Accessible.description: selectable ? "" : Theme.unavailable
    Accessible.checkable: marksColumn
    Accessible.checked: marked
    Accessible.focused: highlighted
    Accessible.onPressAction: if (row.selectable) row.picked()

    HorizontalDivider {
        visible: row.separator
        x: line.x
        y: (row.height - height) / 2
        width: line.width
    }

    Rectangle {
        width: row.fullWidth
        height: row.height
        radius: Theme.smallRadius
        color: row.highlighted ? Theme.accent : "transparent"

        TapHandler {
            enabled: row.selectable
            gesturePolicy: TapHandler.WithinBounds
            onTapped: row.clicked()
        }
    }

    RowLayout {
        id: line
        visible: !row.separator
        x: row.marksColumn ? 6 : 8
        width: row.fullWidth - 2 * x
        height: row.height
        spacing: 5

        SymbolIcon {
            Layout.preferredWidth: 14
            visible: row.marksColumn
            name: row.marked ? "checkmark" : ""
            weight: "bold"
            size: 14
            color: row.tint
        }
        LineText {
            Layout.fillWidth: true
            text: row.title
            color: row.tint
            Accessible.ignored: true
        }
        BodyText {
            Layout.leftMargin: 22
            visible: row.keys.length > 0
            text: row.keys
            color: row.highlighted ? Theme.overAccent : Theme.secondary
            wrapMode: Text.NoWrap
            Accessible.ignored: true
        }
    }
}
