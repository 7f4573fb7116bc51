import QtQuick
import QtQuick.Templates as T
import Velmora

/// The overlay bar that shows where a list or a text stands, while it moves or is pointed at, and for
/// a moment when there is more than fits.
T.ScrollBar {
    id: bar

    implicitWidth: vertical ? 10 : 40
    implicitHeight: vertical ? 40 : 10
    padding: 2
    minimumSize: 0.06
    visible: size < 1
    Accessible.ignored: true

    onVisibleChanged: if (visible) moment.restart()
    Component.onCompleted: if (visible) moment.restart()

    Timer {
        id: moment
        interval: 1500
    }

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: Theme.scrollThumb
        opacity: bar.active || bar.hovered || bar.pressed || moment.running ? 1 : 0

        Behavior on opacity {
            NumberAnimation { duration: Theme.quick * 2 }
        }
    }
}
