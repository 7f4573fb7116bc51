pragma Singleton
import QtQuick

/// What the Return key does where it means an action: with Command, Shift or the like it is
/// another's, and while it is held it acts once.
QtObject {
    /// Takes `event` when it is a plain Return, and then does `action`.
    function take(event: KeyEvent, action: var) {
        event.accepted = (event.modifiers & ~Qt.KeypadModifier) === Qt.NoModifier;
        if (event.accepted && !event.isAutoRepeat)
            action();
    }
}
