pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Velmora

/// A titled whole number with arrows that step it between two ends.
Item {
    id: stepper

    property int value: 0
    property int from: 0
    property int to: 100
    property string text
    readonly property int minimumValue: from
    readonly property int maximumValue: to
    readonly property int stepSize: 1

    signal changed(int value)

    implicitWidth: line.implicitWidth
    implicitHeight: Math.max(Theme.controlHeight, line.implicitHeight)
    activeFocusOnTab: true
    Accessible.role: Accessible.SpinBox
    Accessible.description: enabled ? "" : Theme.unavailable
    Accessible.name: text
    Accessible.onIncreaseAction: if (stepper.value < stepper.to) stepper.changed(stepper.value + 1)
    Accessible.onDecreaseAction: if (stepper.value > stepper.from) stepper.changed(stepper.value - 1)
    Keys.onUpPressed: if (value < to) changed(value + 1)
    Keys.onDownPressed: if (value > from) changed(value - 1)

    RowLayout {
        id: line
        anchors.fill: parent
        spacing: 12

        BodyText {
            Layout.fillWidth: true
            opacity: stepper.enabled ? 1 : Theme.disabledOpacity
            text: stepper.text
            Accessible.ignored: true
        }
        StepArrows {
            opacity: enabled ? 1 : Theme.disabledOpacity
            canIncrease: stepper.value < stepper.to
            canDecrease: stepper.value > stepper.from
            onStepped: delta => stepper.changed(stepper.value + delta)

            FocusRing { shown: stepper.activeFocus }
        }
    }
}
