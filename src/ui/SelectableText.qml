import QtQuick
import Velmora

/// Text that can be selected and copied. With `lines` it ends there with an ellipsis.
FocusScope {
    id: passage

    property string text
    property color color: Theme.secondary
    property int fontSize: Theme.callout
    property int lines: 10000

    /// The pointer has put the keyboard here.
    signal entered

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
        focus: true
        onActiveFocusChanged: {
            if (activeFocus)
                passage.entered();
            else if (!menu.shown)
                deselect();
        }
        Component.onCompleted: TextCommands.passShortcuts(selection)
        Keys.onMenuPressed: menu.openAtCaret(cursorRectangle)
        Accessible.ignored: true

        TextMenu {
            id: menu
            field: selection
        }
    }
}
