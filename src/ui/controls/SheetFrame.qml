pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Velmora

/// A sheet: its title, what it holds, and its buttons at the foot. What it holds scrolls where the
/// window is too low.
SheetPanel {
    id: sheet

    property string title
    property int defaultWidth: 480
    property int spacing: 18
    property int buttonSpacing: spacing
    default property alias content: column.data
    property alias buttons: buttonRow.data

    implicitWidth: defaultWidth
    implicitHeight: all.implicitHeight + 2 * Theme.sheetPadding
    Accessible.role: Accessible.Dialog
    Accessible.name: title

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
