pragma ComponentBehavior: Bound
import QtQuick
import QtQml
import QtQuick.Templates as T
import Velmora

/// The main window: menus, content, sheets and the alert; and the windows that belong to it.
T.ApplicationWindow {
    id: root

    required property Presentation presentation
    required property bool nativeMenus
    required property bool nativeTitle

    readonly property int barHeight: nativeMenus ? 0 : bar.height

    width: 1240
    height: 740 + barHeight
    minimumWidth: 960
    // What the title bar does not show is drawn here, above the content.
    minimumHeight: 580 + content.headerHeight + barHeight
    title: presentation.window.title
    color: Theme.windowBackground
    font.family: Theme.fontFamily
    onClosing: close => {
        close.accepted = presentation.window.mayClose();
        if (!close.accepted)
            requestActivate();
    }

    // Keeps the bar's room.
    menuBar: Item {
        implicitHeight: bar.implicitHeight
        visible: bar.visible
    }
    WindowMenuBar {
        id: bar
        width: root.width
        visible: !root.nativeMenus
        commands: root.presentation.menus
    }
    // No item's, for what lies over the window would keep its key from it.
    readonly property Shortcut menuKey: Shortcut {
        sequence: "F10"
        enabled: !root.nativeMenus
        onActivated: bar.open(0)
    }
    MenuShortcuts {
        active: !root.nativeMenus
        commands: root.presentation.menus
    }
    Loader {
        active: root.nativeMenus
        Component.onCompleted: if (active) setSource("NativeMenuBar.qml", {
            commands: root.presentation.menus
        })
    }

    ContentView {
        id: content
        anchors.fill: parent
        presentation: root.presentation
        titled: !root.nativeTitle
    }
    SheetHost {
        presentation: root.presentation
        titleBottom: root.barHeight + content.headerHeight
    }

    // Another window, which is read and made when it is first wanted.
    component LateWindow: QtObject {
        required property string file
        property var handed: ({})
        property Window window: null

        function present() {
            if (window === null)
                window = Qt.createComponent(file).createObject(root, handed) as Window;
            window.transientParent = root;
            window.show();
            window.raise();
            window.requestActivate();
        }
    }
    LateWindow {
        id: settings
        file: "SettingsWindow.qml"
        handed: ({ settings: root.presentation.settings })
    }
    LateWindow {
        id: about
        file: "AboutWindow.qml"
    }
    Connections {
        target: root.presentation.window
        function onSettingsRequested() {
            settings.present();
        }
    }
    Connections {
        target: root.presentation.menus
        function onAboutRequested() {
            about.present();
        }
    }
}
