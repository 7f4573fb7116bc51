pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Velmora

/// A pop-up picker: shows the chosen option and opens the others around it.
MenuOpener {
    id: picker

    property var options: []
    property int currentIndex: -1
    property string accessibleName

    signal chosen(int index)

    implicitWidth: Math.ceil(Math.max(0, ...options.map(each => face.advanceWidth(each))))
                   + line.anchors.leftMargin + line.spacing + arrows.implicitWidth
                   + line.anchors.rightMargin
    implicitHeight: Theme.controlHeight
    text: options[currentIndex] ?? ""
    menu: popup
    Accessible.role: Accessible.ComboBox
    Accessible.name: accessibleName
    Accessible.description: enabled ? text : text + ". " + Theme.unavailable

    FontMetrics {
        id: face
        font: words.font
    }

    // The chosen option lies over the control. Where the window leaves no room for those before it,
    // they scroll into view, and the menu grows by them.
    PopupMenu {
        id: popup

        property real controlTop: 0
        readonly property real before: Math.max(0, picker.currentIndex) * 24
        readonly property real shownBefore: Math.min(before, controlTop - margins - rowsTop)

        x: -21
        y: -rowsTop - shownBefore
        // Not by its own place, which follows the width where the window is too narrow.
        width: Math.max(implicitWidth, picker.width + 21)
        height: Math.min(implicitHeight - stillHidden,
                         picker.Window.height - margins - controlTop - y)
        entries: picker.options
        markedIndex: picker.currentIndex
        marksColumn: true
        onAboutToShow: {
            controlTop = picker.mapToItem(null, 0, 0).y;
            stillHidden = before - shownBefore;
        }
        onChosen: index => picker.chosen(index)
    }

    ControlSurface {
        anchors.fill: parent
        enabled: picker.filled
        pressed: popup.visible
        hovered: picker.hovered
    }
    FocusRing { shown: picker.activeFocus }

    RowLayout {
        id: line
        anchors.fill: parent
        anchors.leftMargin: 9
        anchors.rightMargin: 5
        spacing: 6

        LineText {
            id: words
            Layout.fillWidth: true
            text: picker.text
            Accessible.ignored: true
        }
        Rectangle {
            id: arrows
            implicitWidth: 16
            implicitHeight: 16
            radius: Theme.tinyRadius
            color: picker.enabled ? Theme.accent : Theme.quaternary

            SymbolIcon {
                anchors.centerIn: parent
                name: "chevron.up.chevron.down"
                size: 11
                color: picker.enabled ? Theme.overAccent : Theme.secondary
            }
        }
    }
}
