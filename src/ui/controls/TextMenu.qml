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

    function open(place: point) {
        field.forceActiveFocus(Qt.PopupFocusReason);
        shown = true;
        maker.active = true;
        (maker.object as FieldMenu).openAt(place);
    }
    function openAtCaret() {
        const caret = (field as TextInput)?.cursorRectangle ?? (field as TextEdit)?.cursorRectangle;
        open(Qt.point(caret.x, caret.y + caret.height));
    }

    acceptedButtons: Qt.RightButton
    acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    gesturePolicy: TapHandler.WithinBounds
    onTapped: eventPoint => open(eventPoint.position)

    component FieldMenu: PopupMenu {
        function openAt(place: point) {
            x = place.x;
            y = place.y;
            open();
        }
    }

    readonly property Instantiator maker: Instantiator {
        active: false

        FieldMenu {
            parent: menu.field
            onAboutToShow: entries = TextCommands.entriesFor(menu.field)
            onClosed: menu.shown = false
            onChosen: index => TextCommands.run(entries[index].command, menu.field)
        }
    }
}
