pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Velmora

/// A time of hours and minutes, typed or stepped part by part, as the user's language writes it.
FocusScope {
    id: picker

    property int hour: 0
    property int minute: 0
    property string accessibleName

    signal picked(int hour, int minute)

    component HalfOfDay: ClockSegment {
        required property ClockFields fields
        property string pickerName

        Accessible.ignored: !visible
        text: fields.halfText
        value: fields.hour < 12 ? 0 : 1
        maximumValue: 1
        accessibleName: pickerName + " " + text
        onStepped: delta => fields.stepHalf(delta)
        take: character => fields.typeHalf(character)
    }

    function step(delta: int) {
        if (minutes.activeFocus)
            clock.stepMinute(delta);
        else if (halfFirst.activeFocus || halfLast.activeFocus)
            clock.stepHalf(delta);
        else
            clock.stepHour(delta);
    }

    // What stands between hours and minutes leads from one to the other.
    function goOn(character: string): bool {
        const ends = character === clock.separator;
        if (ends)
            minutes.forceActiveFocus(Qt.OtherFocusReason);
        return ends;
    }

    implicitWidth: line.implicitWidth + 8 + 4 + arrows.implicitWidth
    implicitHeight: Theme.controlHeight
    opacity: enabled ? 1 : Theme.disabledOpacity
    Accessible.role: Accessible.Grouping
    Accessible.name: accessibleName

    ClockFields {
        id: clock
        hour: picker.hour
        minute: picker.minute
        onPicked: (hour, minute) => picker.picked(hour, minute)
    }

    FontMetrics {
        id: face
        // Asks for the font first, to be measured again when that is another.
        readonly property real twoDigits: font.family === "" ? 0
            : 2 + Math.ceil(2 * Math.max(...Array.from("0123456789", each => face.advanceWidth(each))))
        font: hours.font
    }

    FieldSurface {
        width: line.implicitWidth + 8
        height: parent.height
        focused: picker.activeFocus

        GridLayout {
            id: line
            anchors.centerIn: parent
            rows: 1
            columnSpacing: 0

            // First or last among its siblings, too, for the Tab key visits them in that order.
            HalfOfDay {
                id: halfFirst
                fields: clock
                Layout.column: 0
                rightPadding: 4
                visible: clock.halfFirst
                pickerName: picker.accessibleName
                Keys.onRightPressed: hours.forceActiveFocus(Qt.OtherFocusReason)
            }
            ClockSegment {
                id: hours
                focus: true
                Layout.column: 1
                Layout.preferredWidth: face.twoDigits
                horizontalAlignment: Text.AlignRight
                text: clock.hourText
                value: clock.hour
                maximumValue: 23
                accessibleName: picker.accessibleName + " hour"
                onStepped: delta => clock.stepHour(delta)
                take: character => clock.typeHour(character) || picker.goOn(character)
                onActiveFocusChanged: clock.endTyping()
                Keys.onLeftPressed: if (clock.halfFirst) halfFirst.forceActiveFocus(Qt.OtherFocusReason)
                Keys.onRightPressed: minutes.forceActiveFocus(Qt.OtherFocusReason)
            }
            BodyText {
                Layout.column: 2
                topPadding: 1
                text: clock.separator
                Accessible.ignored: true
            }
            ClockSegment {
                id: minutes
                Layout.column: 3
                Layout.preferredWidth: face.twoDigits
                text: clock.minuteText
                value: clock.minute
                accessibleName: picker.accessibleName + " minute"
                onStepped: delta => clock.stepMinute(delta)
                take: character => clock.typeMinute(character)
                onActiveFocusChanged: clock.endTyping()
                Keys.onLeftPressed: hours.forceActiveFocus(Qt.OtherFocusReason)
                Keys.onRightPressed: if (clock.halfLast) halfLast.forceActiveFocus(Qt.OtherFocusReason)
            }
            HalfOfDay {
                id: halfLast
                fields: clock
                Layout.column: 4
                leftPadding: 4
                visible: clock.halfLast
                pickerName: picker.accessibleName
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
