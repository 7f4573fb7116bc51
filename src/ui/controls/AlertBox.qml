import QtQuick
import QtQuick.Layouts
import Velmora

/// An alert: the application's icon, a title, a sentence and at most two buttons.
SheetPanel {
    id: alert

    property alertContent content

    signal acted
    signal dismissed

    implicitWidth: 280
    implicitHeight: column.implicitHeight + 36
    radius: Theme.largeRadius
    Accessible.role: Accessible.AlertMessage
    Accessible.name: content.title
    Accessible.description: content.message
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
            text: alert.content.title
            font.weight: Font.Bold
            horizontalAlignment: Text.AlignHCenter
        }
        ScrollArea {
            id: area
            Layout.fillWidth: true
            Layout.fillHeight: true
            contentHeight: words.implicitHeight
            accessibleName: alert.content.title

            BodyText {
                id: words
                width: area.width
                text: alert.content.message
                font.pixelSize: Theme.callout
                horizontalAlignment: Text.AlignHCenter
            }
        }
        RowLayout {
            Layout.topMargin: 10
            spacing: Theme.gap

            PushButton {
                Layout.fillWidth: true
                visible: text.length > 0
                text: alert.content.action
                kind: PushButton.Destructive
                controlSize: PushButton.Large
                onClicked: alert.acted()
            }
            PushButton {
                Layout.fillWidth: true
                text: alert.content.dismissal
                kind: PushButton.Prominent
                controlSize: PushButton.Large
                onClicked: alert.dismissed()
            }
        }
    }
}
