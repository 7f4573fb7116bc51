pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Velmora

/// The panel of a sheet: its title, what it holds, and its buttons at the foot. What it holds
/// scrolls where the window is too low. Return presses the button that has the keyboard and accepts
/// anywhere else in the sheet; the cancel key cancels.
FocusScope {
    id: sheet

    property string title
    property int defaultWidth: 480
    property int spacing: 18
    property int buttonSpacing: spacing
    default property alias content: column.data
    property alias buttons: buttonRow.data

    signal cancelled
    signal accepted

    function takeReturn(event: KeyEvent): bool {
        const plain = (event.modifiers & ~Qt.KeypadModifier) === Qt.NoModifier;
        if (plain && !event.isAutoRepeat)
            accepted();
        return plain;
    }

    height: Math.min(implicitHeight, Window.height)
    implicitWidth: defaultWidth
    implicitHeight: all.implicitHeight + 2 * Theme.sheetPadding
    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: title
    Keys.onReturnPressed: event => event.accepted = takeReturn(event)
    Keys.onEnterPressed: event => event.accepted = takeReturn(event)
    Keys.onPressed: event => {
        event.accepted = event.matches(StandardKey.Cancel);
        if (event.accepted && !event.isAutoRepeat)
            cancelled();
    }

    Rectangle {
        anchors.fill: parent
        radius: Theme.panelRadius
        color: Theme.sheetBackground
        border.color: Theme.sheetEdge
    }

    ColumnLayout {
        id: all
        anchors.fill: parent
        anchors.margins: Theme.sheetPadding
        spacing: 0

        BodyText {
            Layout.fillWidth: true
            text: sheet.title
            font.pixelSize: Theme.title2
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        ScrollArea {
            id: area
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.topMargin: sheet.spacing
            contentHeight: column.implicitHeight
            accessibleName: sheet.title
            revealed: held.activeFocus ? Window.activeFocusItem : null

            FocusScope {
                id: held
                width: area.width
                height: column.implicitHeight

                ColumnLayout {
                    id: column
                    width: held.width
                    spacing: sheet.spacing
                }
            }
        }
        RowLayout {
            id: buttonRow
            Layout.topMargin: sheet.buttonSpacing
            Layout.alignment: Qt.AlignRight
            spacing: Theme.gap
        }
    }
}
