import QtQuick
import Velmora

/// A field for a decimal number. Every number that is typed counts at once; what is none goes when
/// the keyboard does, and Escape brings back the number that stood there before.
TextEntry {
    id: entry

    property real value: 0
    property real before: 0

    readonly property bool onScreen: Window.visibility !== Window.Hidden

    signal valueEdited(real value)

    function show() {
        text = NumberText.shown(value);
    }

    implicitWidth: 44
    horizontalAlignment: TextInput.AlignRight
    inputMethodHints: Qt.ImhFormattedNumbersOnly
    Component.onCompleted: show()
    onValueChanged: if (!activeFocus) show()
    onOnScreenChanged: {
        before = value;
        show();
    }
    onEdited: text => {
        if (NumberText.readable(text))
            valueEdited(NumberText.value(text));
    }
    onEditingFinished: show()
    onActiveFocusChanged: {
        if (!activeFocus || focusReason === Qt.PopupFocusReason)
            return;
        before = value;
        selectAll();
    }
    onAccepted: {
        before = value;
        selectAll();
    }
    Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Escape
                                                         && text !== NumberText.shown(before)
    Keys.onEscapePressed: event => {
        event.accepted = text !== NumberText.shown(before);
        valueEdited(before);
        show();
        selectAll();
    }
}
