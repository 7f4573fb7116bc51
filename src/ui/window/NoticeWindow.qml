import QtQuick
import QtQuick.Window
import Velmora

/// The alert in a window of its own, for a program that shows nothing else.
Window {
    id: notice

    required property string message

    width: alert.implicitWidth
    height: alert.implicitHeight
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    flags: Qt.Dialog
    title: "Velmora"
    color: Theme.sheetBackground
    visible: true
    Component.onCompleted: {
        raise();
        requestActivate();
    }

    AlertBox {
        id: alert
        anchors.fill: parent
        title: "Velmora"
        message: notice.message
        onDismissed: notice.close()
    }
}
