pragma ComponentBehavior: Bound
import QtQml
import Qt.labs.platform as Platform
import Velmora

/// The desktop's own menu bar. The system moves About, Settings and Quit to the application's menu.
Platform.MenuBar {
    id: bar

    required property MenuCommands commands

    property Instantiator menuMaker: Instantiator {
        model: bar.commands.menus
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

                    readonly property var offer: bar.commands.offers[modelData.command]

                    text: modelData.text
                    separator: modelData.separator
                    shortcut: offer?.shortcut ?? ""
                    enabled: offer?.enabled ?? true
                    role: modelData.command === Menus.Command.about
                          ? Platform.MenuItem.AboutRole
                          : modelData.command === Menus.Command.settings
                            ? Platform.MenuItem.PreferencesRole
                            : modelData.command === Menus.Command.quit
                              ? Platform.MenuItem.QuitRole : Platform.MenuItem.NoRole
                    onTriggered: bar.commands.run(item.modelData.command)
                }
            }

            title: modelData.title
            onAboutToShow: bar.commands.lookAtField()
            visible: !modelData.application
        }
    }
}
