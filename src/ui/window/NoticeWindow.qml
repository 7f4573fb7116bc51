import QtQuick
import Velmora

/// The alert in a window of its own, for a program that shows nothing else.
Window {
    id: notice

    required property alertContent content

    width: alert.implicitWidth
    height: alert.implicitHeight
    minimumWidth: alert.implicitWidth
    maximumWidth: alert.implicitWidth
    minimumHeight: alert.implicitHeight
    maximumHeight: alert.implicitHeight
    flags: Qt.Dialog
    title: content.title
    color: Theme.sheetBackground
    visible: true
    Component.onCompleted: {
        raise();
        requestActivate();
    }

    AlertBox {
        id: alert
        anchors.fill: parent
        radius: 0
        content: notice.content
        onDismissed: notice.close()
    }
}
