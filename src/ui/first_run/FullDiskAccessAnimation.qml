pragma ComponentBehavior: Bound
import QtQuick
import Velmora

/// A small window of the system's settings in which a pointer turns on the Velmora switch, over and
/// over. It is redrawn with every frame while it can be seen; a user who asked for less motion sees
/// the end of it, the switch turned on.
Item {
    id: animation

    required property FirstRunModel firstRun

    implicitWidth: 320
    implicitHeight: 200
    Accessible.role: Accessible.Animation
    Accessible.name: "An animation of turning on the Velmora switch under Full Disk Access in System Settings"

    FullDiskAccessTimeline {
        id: timeline
        still: SystemAppearance.reducesMotion
        time: animation.firstRun.animationTime()
    }
    FrameAnimation {
        running: animation.visible && !timeline.still
        onTriggered: timeline.time = animation.firstRun.animationTime()
    }

    Rectangle {
        id: pane
        anchors.fill: parent
        radius: Theme.panelRadius
        color: Theme.windowBackground
        border.color: Theme.controlBorder

        Row {
            x: 13
            y: 13
            spacing: 7

            Repeater {
                model: ["#ff5f57", "#febc2e", "#28c840"]

                Rectangle {
                    required property color modelData

                    width: 10
                    height: 10
                    radius: 5
                    color: modelData
                }
            }
        }
        BodyText {
            y: 9
            width: parent.width
            text: "Full Disk Access"
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignHCenter
            Accessible.ignored: true
        }
        HorizontalDivider {
            y: 36
            width: parent.width
        }
        BodyText {
            x: 14
            y: 47
            width: parent.width - 28
            text: "Allow the applications below to access all of your files."
            color: Theme.secondary
            font.pixelSize: 10
            Accessible.ignored: true
        }
        Rectangle {
            x: 14
            y: 68
            width: parent.width - 28
            height: 44
            radius: Theme.boxRadius
            color: Theme.groupBackground
            border.color: Theme.separator

            Image {
                x: 10
                y: 9
                source: "image://symbol/applicationIcon"
                sourceSize.width: 26
                sourceSize.height: 26
            }
            BodyText {
                x: 45
                height: parent.height
                verticalAlignment: Text.AlignVCenter
                text: "Velmora.app"
                Accessible.ignored: true
            }
            Rectangle {
                x: 240
                y: 11
                width: 38
                height: 22
                radius: 11
                color: Theme.switchOff

                Rectangle {
                    anchors.fill: parent
                    radius: parent.radius
                    color: Theme.accent
                    opacity: timeline.switchedOn
                }
                Rectangle {
                    x: 2 + 16 * timeline.switchedOn
                    y: 2
                    width: 18
                    height: 18
                    radius: 9
                    color: "#ffffff"
                }
            }
        }
        Image {
            source: "image://symbol/arrowPointer"
            sourceSize.width: 32
            sourceSize.height: 32
            x: timeline.pointerX
            y: timeline.pointerY
            scale: timeline.pointerScale
            transformOrigin: Item.TopLeft
        }
    }
    // The whole drawing fades as one, without a layer, whose corners the software renderer paints.
    Rectangle {
        anchors.fill: parent
        color: Theme.sheetBackground
        opacity: 1 - timeline.opacity
    }
}
