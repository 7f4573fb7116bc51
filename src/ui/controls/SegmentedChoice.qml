pragma ComponentBehavior: Bound
import QtQuick
import Velmora

/// A row of segments of which one is chosen. Arrows, a click or a press choose another.
Item {
    id: choice

    property list<string> options
    property int currentIndex: 0
    property bool small: false
    property string accessibleName
    property string help

    signal chosen(int index)

    implicitWidth: 64 * options.length
    implicitHeight: small ? Theme.smallControlHeight + 2 : Theme.controlHeight
    activeFocusOnTab: true
    opacity: enabled ? 1 : Theme.disabledOpacity
    Accessible.role: Accessible.Grouping
    Accessible.name: accessibleName
    Accessible.description: options[currentIndex] + ". "
                            + (enabled ? help : Theme.unavailable)
    Keys.onLeftPressed: if (currentIndex > 0) chosen(currentIndex - 1)
    Keys.onRightPressed: if (currentIndex < options.length - 1) chosen(currentIndex + 1)
    Keys.onSpacePressed: event => {
        if (!event.isAutoRepeat)
            chosen((currentIndex + 1) % options.length);
    }

    HoverHandler { id: hover }

    HelpTip {
        text: choice.help
        wanted: hover.hovered
    }

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: Theme.quaternary

        FocusRing { shown: choice.activeFocus }
    }

    Item {
        id: track
        anchors.fill: parent
        anchors.margins: 2
        readonly property real segmentWidth: width / Math.max(1, choice.options.length)

        Rectangle {
            x: choice.currentIndex * track.segmentWidth
            width: track.segmentWidth
            height: parent.height
            radius: Theme.smallRadius
            color: Theme.segment
            border.color: Theme.segmentEdge

            Behavior on x {
                NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic }
            }
        }

        Repeater {
            model: choice.options

            LineText {
                id: segment
                required property string modelData
                required property int index

                x: index * track.segmentWidth
                width: track.segmentWidth
                height: track.height
                text: modelData
                font.pixelSize: choice.small ? Theme.caption : Theme.body
                font.weight: choice.currentIndex === index ? Font.Medium : Font.Normal
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                Accessible.role: Accessible.RadioButton
                Accessible.checkable: true
                Accessible.checked: choice.currentIndex === index
                Accessible.onPressAction: if (enabled) choice.chosen(segment.index)
                Accessible.onToggleAction: if (enabled) choice.chosen(segment.index)

                TapHandler { onTapped: choice.chosen(segment.index) }
            }
        }
    }
}
