pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velmora

/// The pair of small arrows that steps a value up and down; holding one repeats.
Item {
    id: arrows

    property bool canIncrease: true
    property bool canDecrease: true

    signal stepped(int delta)

    implicitWidth: 15
    implicitHeight: 24

    component Half: T.AbstractButton {
        id: half
        property string symbol
        property int delta

        width: parent.width
        height: parent.height / 2
        autoRepeat: true
        focusPolicy: Qt.NoFocus
        hoverEnabled: true
        Accessible.ignored: true
        onClicked: arrows.stepped(delta)

        SymbolIcon {
            anchors.centerIn: parent
            name: half.symbol
            size: 9
            opacity: half.enabled || !arrows.enabled ? 1 : 0.35
        }
        background: Rectangle {
            radius: Theme.tinyRadius
            color: half.down ? Theme.controlPressed : "transparent"
            anchors.fill: parent
            anchors.margins: 1
        }
    }

    ControlSurface { anchors.fill: parent }
    Half {
        symbol: "chevron.up"
        delta: 1
        enabled: arrows.canIncrease
    }
    Half {
        y: parent.height / 2
        symbol: "chevron.down"
        delta: -1
        enabled: arrows.canDecrease
    }
}
