import QtQuick
import QtQuick.Layouts
import Velmora

/// The one alert: the application's icon, a title, a sentence and OK.
SheetPanel {
    id: alert

    property string title
    property string message

    signal dismissed

    implicitWidth: 280
    implicitHeight: column.implicitHeight + 36
    radius: Theme.largeRadius
    Accessible.role: Accessible.AlertMessage
    Accessible.name: title
    Accessible.description: message
    Component.onCompleted: Announcer.alert(alert)
    onAccepted: dismissed()
    onCancelled: dismissed()

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
        ScrollArea {
            id: area
            Layout.fillWidth: true
            Layout.fillHeight: true
            contentHeight: words.implicitHeight
            accessibleName: alert.title

            BodyText {
                id: words
                width: area.width
                text: alert.message
                font.pixelSize: Theme.callout
                horizontalAlignment: Text.AlignHCenter
            }
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
