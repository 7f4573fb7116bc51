pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velmora

/// One sheet over the window: it comes from under the title, dims the rest and keeps the pointer,
/// the keyboard and the shortcuts to itself. Only its own buttons and keys let it go.
T.Popup {
    id: popup

    required property bool shown
    /// Whether the alert lies over it.
    required property bool covered
    required property int titleBottom
    /// The sheet's view, which is not even read before it is shown, and what it is made with.
    required property string file
    required property var handed

    property real hidden: 0

    parent: T.Overlay.overlay
    x: Math.round((parent.width - width) / 2)
    y: Math.max(0, Math.min(titleBottom, parent.height - height))
    width: implicitWidth
    height: Math.min(implicitHeight, parent.height)
    implicitWidth: implicitContentWidth
    implicitHeight: implicitContentHeight
    padding: 0
    clip: hidden > 0
    modal: true
    focus: true
    closePolicy: T.Popup.NoAutoClose
    visible: shown

    T.Overlay.modal: Rectangle {
        color: Theme.sheetDim
    }

    enter: Transition {
        NumberAnimation {
            property: "hidden"
            from: 1
            to: 0
            duration: Theme.sheetSlide
            easing.type: Easing.OutCubic
        }
    }
    exit: Transition {
        NumberAnimation {
            property: "hidden"
            from: 0
            to: 1
            duration: Theme.sheetSlide
            easing.type: Easing.InCubic
        }
    }

    background: SheetShadow {
        opacity: 1 - popup.hidden
    }
    contentItem: SheetStage {
        file: popup.file
        handed: popup.handed
        held: popup.visible
        covered: popup.covered
        leaving: !popup.shown
        lift: popup.hidden * popup.height
    }
}
