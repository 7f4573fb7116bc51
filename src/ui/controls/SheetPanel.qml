import QtQuick
import Velmora

/// The panel of a sheet or of the alert, as high as the window at most. Return presses the button
/// that has the keyboard and accepts anywhere else in the panel; the cancel key cancels.
FocusScope {
    id: panel

    property alias radius: face.radius

    signal cancelled
    signal accepted

    height: Math.min(implicitHeight, Window.height)
    focus: true
    Keys.onReturnPressed: event => PlainReturn.take(event, accepted)
    Keys.onEnterPressed: event => PlainReturn.take(event, accepted)
    Keys.onPressed: event => {
        event.accepted = event.matches(StandardKey.Cancel);
        if (event.accepted && !event.isAutoRepeat)
            cancelled();
    }

    Rectangle {
        id: face
        anchors.fill: parent
        radius: Theme.panelRadius
        color: Theme.sheetBackground
        border.color: Theme.sheetEdge
    }
}
