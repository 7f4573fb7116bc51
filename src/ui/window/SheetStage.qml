pragma ComponentBehavior: Bound
import QtQuick
import Velmora

/// Holds one sheet while it is shown, as large as the sheet wants to be.
FocusScope {
    id: stage

    required property string file
    required property var handed
    /// Whether there is a sheet to hold.
    required property bool held
    /// Whether something lies over the sheet.
    required property bool covered
    /// Whether the sheet is on its way out, and takes clicks no longer.
    required property bool leaving
    required property real lift

    function hold() {
        if (held)
            holder.setSource(file, handed);
        else
            holder.source = "";
    }

    focus: true
    onHeldChanged: hold()
    Component.onCompleted: hold()
    implicitWidth: holder.implicitWidth
    implicitHeight: holder.implicitHeight
    transform: Translate {
        y: -stage.lift
    }

    UnspokenArea {
        Accessible.ignored: !stage.covered && !stage.leaving

        Loader {
            id: holder
            focus: true
        }
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        visible: stage.leaving
    }
}
