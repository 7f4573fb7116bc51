pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Velmora

/// The panel of a sheet: its title, what it holds, and its buttons at the foot. Return accepts and
/// the cancel key cancels, wherever in the sheet the keyboard is.
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

    implicitWidth: defaultWidth
    implicitHeight: all.implicitHeight + 2 * Theme.sheetPadding
    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: title
    Keys.onReturnPressed: event => event.accepted = takeReturn(event)
    Keys.onEnterPressed: event => event.accepted = takeReturn(event)
    Keys.onPressed: event => {
        event.accepted = event.matches(StandardKey.Cancel);
        if (event.accepted)
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
        ColumnLayout {
            id: column
            Layout.fillWidth: true
            Layout.topMargin: sheet.spacing
            spacing: sheet.spacing
        }
        RowLayout {
            id: buttonRow
            Layout.topMargin: sheet.buttonSpacing
            Layout.alignment: Qt.AlignRight
            spacing: Theme.gap
        }
    }
}
