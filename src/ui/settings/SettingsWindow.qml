import QtQuick
import Velmora

/// The window of the settings.
Window {
    id: window

    required property SettingsModel settings

    width: view.implicitWidth
    height: view.implicitHeight
    minimumWidth: view.implicitWidth
    maximumWidth: view.implicitWidth
    minimumHeight: view.implicitHeight
    maximumHeight: view.implicitHeight
    flags: Qt.Dialog
    title: "Settings"
    color: Theme.windowBackground

    Shortcut {
        autoRepeat: false
        sequences: ["Esc", "Ctrl+W"]
        onActivated: window.close()
    }
    SettingsView {
        id: view
        anchors.fill: parent
        settings: window.settings
    }
}
