pragma ComponentBehavior: Bound
import QtQml
import Qt.labs.platform as Platform
import Velmora

/// The desktop's own menu bar. The system moves About, Settings and Quit to the application's menu.
Platform.MenuBar {
    id: bar

    required property Presentation presentation

    property Instantiator menuMaker: Instantiator {
        model: bar.presentation.menus.menus
        onObjectAdded: (index, object) => bar.insertMenu(index, object as Platform.Menu)

        delegate: Platform.Menu {
            id: menu

            required property var modelData

            property Instantiator itemMaker: Instantiator {
                model: menu.modelData.entries
                onObjectAdded: (index, object) =>
                    menu.insertItem(index, object as Platform.MenuItem)

                delegate: Platform.MenuItem {
                    id: item

                    required property var modelData

                    readonly property bool taken: modelData.command === MenuCommands.Command.send
                                                  && bar.presentation.window.paused

                    text: modelData.text
                    separator: modelData.separator
                    shortcut: taken ? "" : modelData.shortcut
                    enabled: (modelData.reach !== MenuCommands.Reach.content
                              || bar.presentation.window.commandsEnabled)
                             && (modelData.reach !== MenuCommands.Reach.agreed
                                 || bar.presentation.window.settingsEnabled)
                    role: modelData.command === MenuCommands.Command.about
                          ? Platform.MenuItem.AboutRole
                          : modelData.command === MenuCommands.Command.settings
                            ? Platform.MenuItem.PreferencesRole
                            : modelData.command === MenuCommands.Command.quit
                              ? Platform.MenuItem.QuitRole : Platform.MenuItem.NoRole
                    onTriggered: bar.presentation.menus.run(item.modelData.command)
                }
            }

            title: modelData.title
            visible: !modelData.application
        }
    }
}
