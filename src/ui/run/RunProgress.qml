import QtQuick
import Velmora

/// How far a run has come: `value` of `total`.
Item {
    id: progress

    property real value: 0
    property real total: 1
    readonly property real minimumValue: 0
    readonly property real maximumValue: total
    property string accessibleName: "Progress"

    implicitWidth: 200
    implicitHeight: 6
    Accessible.role: Accessible.ProgressBar
    Accessible.name: accessibleName
    Accessible.description: value + " of " + total

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: Theme.groove
    }
    Rectangle {
        width: Math.max(progress.value > 0 ? height : 0,
                        parent.width * Math.min(1, progress.value / Math.max(1, progress.total)))
        height: parent.height
        radius: height / 2
        color: Theme.accent

        Behavior on width {
            NumberAnimation { duration: Theme.quick * 2; easing.type: Easing.OutCubic }
        }
    }
}
