import QtQuick
import QtQuick.Window
import Velmora

/// The window of the settings.
Window {
    id: window

    required property SettingsModel settings

    width: view.implicitWidth
    height: view.implicitHeight
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    flags: Qt.Dialog
    title: "Settings"
    color: Theme.windowBackground

    Shortcut {
        sequences: ["Esc", "Ctrl+W"]
        onActivated: window.close()
    }
    SettingsView {
        id: view
        anchors.fill: parent
        settings: window.settings
    }
}
