pragma ComponentBehavior: Bound
import QtQuick
import QtQml
import Velmora

/// The keys of the menu commands, where the menus are drawn in the window. A text field answers the
/// keys of the Edit menu itself.
Instantiator {
    id: menus

    required property Presentation presentation

    model: presentation.menus.menus

    delegate: Instantiator {
        id: menu

        required property var modelData

        model: menu.modelData.entries

        delegate: Shortcut {
            id: key

            required property var modelData

            readonly property bool onContent: modelData.reach === MenuCommands.Reach.content
            readonly property bool taken: modelData.command === MenuCommands.Command.send
                                          && menus.presentation.window.paused

            sequences: modelData.sequences
            autoRepeat: false
            context: onContent || modelData.command === MenuCommands.Command.close
                     ? Qt.WindowShortcut : Qt.ApplicationShortcut
            enabled: modelData.shortcut !== "" && modelData.reach !== MenuCommands.Reach.text && !taken
                     && (!onContent || menus.presentation.window.commandsEnabled)
                     && (modelData.reach !== MenuCommands.Reach.agreed
                         || menus.presentation.window.settingsEnabled)
            onActivated: menus.presentation.menus.run(key.modelData.command)
        }
    }
}
