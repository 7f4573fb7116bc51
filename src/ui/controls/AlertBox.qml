import QtQuick
import QtQuick.Layouts
import Velmora

/// The one alert: the application's icon, a title, a sentence and OK.
FocusScope {
    id: alert

    property string title
    property string message

    signal dismissed

    implicitWidth: 280
    implicitHeight: column.implicitHeight + 36
    focus: true
    Accessible.role: Accessible.AlertMessage
    Accessible.name: title
    Accessible.description: message
    Keys.onReturnPressed: dismissed()
    Keys.onEnterPressed: dismissed()
    Keys.onPressed: event => {
        event.accepted = event.matches(StandardKey.Cancel);
        if (event.accepted)
            dismissed();
    }

    Rectangle {
        anchors.fill: parent
        radius: 12
        color: Theme.sheetBackground
        border.color: Theme.sheetEdge
    }

    ColumnLayout {
        id: column
        anchors.fill: parent
        anchors.margins: 18
        spacing: 6

        Image {
            Layout.alignment: Qt.AlignHCenter
            Layout.bottomMargin: 6
            source: "image://symbol/applicationIcon"
            sourceSize.width: 56
            sourceSize.height: 56
            Accessible.ignored: true
        }
        BodyText {
            Layout.fillWidth: true
            text: alert.title
            font.weight: Font.Bold
            horizontalAlignment: Text.AlignHCenter
        }
        BodyText {
            Layout.fillWidth: true
            text: alert.message
            font.pixelSize: Theme.callout
            horizontalAlignment: Text.AlignHCenter
        }
        PushButton {
            Layout.fillWidth: true
            Layout.topMargin: 10
            text: "OK"
            kind: PushButton.Prominent
            controlSize: PushButton.Large
            onClicked: alert.dismissed()
        }
    }
}
