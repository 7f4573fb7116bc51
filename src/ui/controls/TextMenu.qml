pragma ComponentBehavior: Bound
import QtQuick
import QtQml
import Velmora

/// The menu of a text field, at a click of the right button or at its caret. It is made when it is
/// first asked for.
TapHandler {
    id: menu

    required property Item field
    /// Whether the field has only lent the keyboard to its menu.
    property bool shown: false

    readonly property Instantiator maker: Instantiator {
        active: false

        PopupMenu {
            parent: menu.field
            onAboutToShow: entries = TextCommands.entriesFor(menu.field)
            onClosed: menu.shown = false
            onChosen: index => TextCommands.run(entries[index].command, menu.field)
        }
    }

    function open(place: point) {
        field.forceActiveFocus(Qt.PopupFocusReason);
        shown = true;
        maker.active = true;
        const popup = maker.object as PopupMenu;
        popup.x = place.x;
        popup.y = place.y;
        popup.open();
    }
    function openAtCaret(caret: rect) {
        open(Qt.point(caret.x, caret.y + caret.height));
    }

    acceptedButtons: Qt.RightButton
    onTapped: eventPoint => open(eventPoint.position)
}
