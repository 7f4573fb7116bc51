pragma ComponentBehavior: Bound
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

    /// Whether the keyboard is in the passage's menu.
    property bool lent: false
    readonly property TextEdit selection: maker.item as TextEdit
    readonly property bool selects: selection !== null && selection.selectedText.length > 0

    implicitHeight: shown.implicitHeight
    // Of the two below one is always transparent, which counts as gone.
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: text.length === 0

    HoverHandler {
        id: pointer
    }
    BodyText {
        id: shown
        width: parent.width
        maximumLineCount: passage.lines
        elide: Text.ElideRight
        opacity: passage.selects ? 0 : 1
        text: passage.text
        color: passage.color
        font.pixelSize: passage.fontSize
        Accessible.ignored: true
    }
    // Made when the pointer comes, for it lays the text out a second time; it has the mouse then, and
    // is seen while something is selected.
    MadeWhenWanted {
        id: maker
        wanted: pointer.hovered || passage.activeFocus || passage.lent

        TextEdit {
            id: selection
            width: passage.width
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
                onShownChanged: passage.lent = shown
            }
        }
    }
}
