import QtQuick
import Velmora

/// The application's name, icon and version.
Window {
    id: about

    width: 300
    height: 220
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    flags: Qt.Dialog
    title: "About Velmora"
    color: Theme.windowBackground

    Shortcut {
        sequences: ["Esc", "Ctrl+W"]
        onActivated: about.close()
    }
    Column {
        anchors.centerIn: parent
        spacing: Theme.gap

        Image {
            anchors.horizontalCenter: parent.horizontalCenter
            source: "image://symbol/applicationIcon"
            sourceSize.width: 96
            sourceSize.height: 96
            Accessible.ignored: true
        }
        BodyText {
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Velmora"
            font.pixelSize: Theme.title2
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        CaptionText {
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Version " + Qt.application.version
        }
    }
}
