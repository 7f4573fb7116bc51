pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velmora

/// Several lines of plain text to type in. It scrolls, and Tab leaves it. Text that is added at the
/// end from outside takes the caret along and can be undone; another subject's text begins anew.
FocusScope {
    id: editor

    property string text
    /// What the text belongs to. It changes after the text.
    property string subject
    property string accessibleName
    property bool following: false

    signal edited(string text)

    function begin() {
        following = true;
        area.clear();
        area.replace(text);
        flick.contentY = 0;
        following = false;
    }

    implicitWidth: 240
    implicitHeight: 140
    opacity: enabled ? 1 : 0.55
    onTextChanged: {
        following = true;
        if (text.startsWith(area.text))
            area.append(text.slice(area.length));
        else
            area.replace(text);
        following = false;
    }
    onSubjectChanged: begin()
    Component.onCompleted: begin()

    FieldSurface {
        anchors.fill: parent
        radius: Theme.boxRadius
        focused: area.activeFocus
    }

    // Only says how far the text is scrolled: the text itself stays where the frame shows it, for what
    // a screen reader is told of its place.
    Flickable {
        id: flick
        anchors.fill: parent
        anchors.margins: 1
        contentHeight: area.contentHeight + 2 * area.padding
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        T.ScrollBar.vertical: SlimScrollBar { z: 1 }

        T.TextArea {
            id: area

            function append(suffix: string) {
                if (suffix.length === 0)
                    return;
                TextCommands.append(textDocument, suffix);
                cursorPosition = length;
            }

            function replace(words: string) {
                if (text === words)
                    return;
                text = words;
                cursorPosition = activeFocus ? length : 0;
            }

            function showCaret() {
                const above = cursorRectangle.y - padding;
                const below = cursorRectangle.y + cursorRectangle.height + padding - height;
                const end = Math.max(0, contentHeight + 2 * padding - height);
                if (above < 0 || below > 0)
                    flick.contentY = Math.max(0, Math.min(end, flick.contentY
                                                               + (above < 0 ? above : below)));
            }

            parent: flick
            width: flick.width
            height: flick.height
            focus: true
            padding: 6
            topPadding: padding - flick.contentY
            // The text goes on to the frame.
            bottomPadding: 0
            wrapMode: TextEdit.Wrap
            textFormat: TextEdit.PlainText
            selectByMouse: true
            color: Theme.primary
            selectionColor: Theme.selection
            selectedTextColor: Theme.primary
            font.family: Theme.fontFamily
            font.pixelSize: Theme.body
            Accessible.name: editor.accessibleName
            Accessible.description: enabled ? "" : Theme.unavailable
            Accessible.multiLine: true
            Keys.onMenuPressed: menu.openAtCaret(cursorRectangle)
            Keys.priority: Keys.BeforeItem
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
            onTextChanged: if (!editor.following) editor.edited(area.text)
            onCursorPositionChanged: showCaret()
            onContentHeightChanged: showCaret()

            TextMenu {
                id: menu
                field: area
            }
        }
    }
}
