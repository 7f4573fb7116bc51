pragma ComponentBehavior: Bound
import QtQuick
import Velmora

/// Holds one sheet while it is shown, as large as the sheet wants to be.
FocusScope {
    id: stage

    required property Component sheet
    /// Whether there is a sheet to hold.
    required property bool held
    /// Whether something lies over the sheet.
    required property bool covered
    /// Whether the sheet is on its way out, and takes clicks no longer.
    required property bool leaving
    required property real lift

    focus: true
    implicitWidth: holder.implicitWidth
    implicitHeight: holder.implicitHeight
    transform: Translate {
        y: -stage.lift
    }

    UnspokenArea {
        Accessible.ignored: !stage.covered && !stage.leaving

        Column {
            id: holder

            MadeWhenWanted {
                wanted: stage.held
                delegate: stage.sheet
            }
        }
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        visible: stage.leaving
    }
}
