import QtQuick
import Velmora

/// One part of a time picker: takes characters and arrows while it has the keyboard.
BodyText {
    id: segment

    property string accessibleName
    property int value: 0
    property int minimumValue: 0
    property int maximumValue: 59
    readonly property int stepSize: 1

    signal stepped(int delta)
    /// Takes a typed character and answers whether it meant something.
    required property var take

    leftPadding: 1
    rightPadding: 1
    topPadding: 1
    bottomPadding: 1
    color: activeFocus ? Theme.overAccent : Theme.primary
    wrapMode: Text.NoWrap
    activeFocusOnTab: true
    Accessible.role: Accessible.SpinBox
    Accessible.description: enabled ? "" : Theme.unavailable
    Accessible.name: accessibleName
    Accessible.focusable: true
    Accessible.onIncreaseAction: segment.stepped(1)
    Accessible.onDecreaseAction: segment.stepped(-1)
    Keys.onUpPressed: stepped(1)
    Keys.onDownPressed: stepped(-1)
    Keys.onPressed: event => {
        const command = event.modifiers & (Qt.ControlModifier | Qt.MetaModifier | Qt.AltModifier);
        event.accepted = command === 0 && take(event.text);
    }

    Rectangle {
        z: -1
        anchors.fill: parent
        radius: 3
        color: Theme.accent
        visible: segment.activeFocus
    }
    TapHandler {
        onTapped: segment.forceActiveFocus(Qt.MouseFocusReason)
    }
}
