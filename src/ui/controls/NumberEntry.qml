import QtQuick
import Velmora

/// A field for a decimal number. Return or leaving the field takes what was typed; what is no
/// number, and Escape, bring the value back.
TextEntry {
    id: entry

    property real value: 0

    signal valueEdited(real value)

    function show() {
        text = NumberText.shown(value);
    }

    implicitWidth: 44
    horizontalAlignment: TextInput.AlignRight
    inputMethodHints: Qt.ImhFormattedNumbersOnly
    Component.onCompleted: show()
    onValueChanged: if (!activeFocus) show()
    onEditingFinished: {
        if (text !== NumberText.shown(value) && NumberText.readable(text))
            valueEdited(NumberText.value(text));
        show();
    }
    onActiveFocusChanged: if (activeFocus && focusReason !== Qt.PopupFocusReason) selectAll()
    onAccepted: selectAll()
    Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Escape
                                                         && text !== NumberText.shown(value)
    Keys.onEscapePressed: event => {
        event.accepted = text !== NumberText.shown(value);
        show();
        selectAll();
    }
}
