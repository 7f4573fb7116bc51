pragma ComponentBehavior: Bound
import QtQuick
import QtQml
import Velmora

/// The keys of the menu commands, where the menus are drawn in the window.
Instantiator {
    id: keys

    required property MenuCommands commands

    model: commands.shortcuts

    delegate: Shortcut {
        required property var modelData

        readonly property var offer: keys.commands.offers[modelData.command]

        sequences: offer.sequences
        autoRepeat: false
        context: keys.commands.meansWindow(modelData.command) ? Qt.WindowShortcut
                                                              : Qt.ApplicationShortcut
        enabled: offer.enabled
        onActivated: keys.commands.run(modelData.command)
    }
}
