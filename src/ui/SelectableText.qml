import QtQuick
import Velmora

/// Text that can be selected and copied. With `lines` it ends there with an ellipsis.
Item {
    id: passage

    property string text
    property color color: Theme.secondary
    property int fontSize: Theme.callout
    property int lines: 10000

    implicitHeight: shown.implicitHeight

    BodyText {
        id: shown
        width: parent.width
        maximumLineCount: passage.lines
        elide: Text.ElideRight
        opacity: selection.selectedText.length > 0 ? 0 : 1
        text: passage.text
        color: passage.color
        font.pixelSize: passage.fontSize
    }
    // Has the mouse all the time, and is seen while something is selected.
    TextEdit {
        id: selection
        width: parent.width
        height: shown.height
        clip: true
        opacity: selectedText.length > 0 ? 1 : 0
        readOnly: true
        selectByMouse: true
        textFormat: TextEdit.PlainText
        wrapMode: TextEdit.Wrap
        text: passage.text
        color: passage.color
        selectionColor: Theme.selection
        selectedTextColor: Theme.primary
        font: shown.font
        onActiveFocusChanged: if (!activeFocus && !menu.shown) deselect()
        Component.onCompleted: TextCommands.passShortcuts(selection)
        Keys.onMenuPressed: menu.openAtCaret(cursorRectangle)
        Accessible.ignored: true

        TextMenu {
            id: menu
            field: selection
        }
    }
}
