pragma ComponentBehavior: Bound
import QtQuick
import Velmora

/// A time of hours and minutes, typed or stepped part by part, as the user's language writes it.
FocusScope {
    id: picker

    property int hour: 0
    property int minute: 0
    property string accessibleName

    signal picked(int hour, int minute)

    function step(delta: int) {
        if (minutes.activeFocus)
            clock.stepMinute(delta);
        else if (half.activeFocus)
            clock.stepHalf(delta);
        else
            clock.stepHour(delta);
    }

    implicitWidth: line.implicitWidth + 8 + 4 + arrows.implicitWidth
    implicitHeight: Theme.controlHeight
    opacity: enabled ? 1 : 0.45
    Accessible.role: Accessible.Grouping
    Accessible.name: accessibleName

    ClockFields {
        id: clock
        hour: picker.hour
        minute: picker.minute
        onPicked: (hour, minute) => picker.picked(hour, minute)
    }

    Rectangle {
        width: line.implicitWidth + 8
        height: parent.height
        radius: Theme.radius - 1
        color: Theme.textBackground
        border.color: Theme.controlBorder

        FocusRing {
            cornerRadius: Theme.radius - 1
            shown: picker.activeFocus
        }

        Row {
            id: line
            anchors.centerIn: parent

            ClockSegment {
                id: hours
                focus: true
                width: Math.max(18, implicitWidth)
                horizontalAlignment: Text.AlignRight
                text: clock.hourText
                value: clock.hour
                maximumValue: 23
                accessibleName: picker.accessibleName + " hour"
                onStepped: delta => clock.stepHour(delta)
                take: character => clock.typeHour(character)
                onActiveFocusChanged: clock.endTyping()
                Keys.onRightPressed: minutes.forceActiveFocus(Qt.OtherFocusReason)
            }
            BodyText {
                topPadding: 1
                text: clock.separator
                Accessible.ignored: true
            }
            ClockSegment {
                id: minutes
                width: Math.max(18, implicitWidth)
                text: clock.minuteText
                value: clock.minute
                accessibleName: picker.accessibleName + " minute"
                onStepped: delta => clock.stepMinute(delta)
                take: character => clock.typeMinute(character)
                onActiveFocusChanged: clock.endTyping()
                Keys.onLeftPressed: hours.forceActiveFocus(Qt.OtherFocusReason)
                Keys.onRightPressed: if (half.visible) half.forceActiveFocus(Qt.OtherFocusReason)
            }
            ClockSegment {
                id: half
                visible: clock.twelveHour
                leftPadding: 4
                Accessible.ignored: !visible
                text: clock.halfText
                value: clock.hour < 12 ? 0 : 1
                maximumValue: 1
                accessibleName: picker.accessibleName + " " + text
                onStepped: delta => clock.stepHalf(delta)
                take: character => clock.typeHalf(character)
                Keys.onLeftPressed: minutes.forceActiveFocus(Qt.OtherFocusReason)
            }
        }
    }

    StepArrows {
        id: arrows
        anchors.right: parent.right
        onStepped: delta => picker.step(delta)
    }
}
