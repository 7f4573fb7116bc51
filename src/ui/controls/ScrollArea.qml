import QtQuick
import QtQuick.Templates as T
import Velmora

/// Scrolls what is taller than its place: by the wheel, by the keyboard once Tab has come here, and
/// to whatever has the keyboard in it.
Item {
    id: area

    property string accessibleName
    /// What is to be seen, as far as it fits.
    property Item revealed: null
    /// How far what is scrolled stays away from the edges.
    property int inset: 0
    property alias cornerRadius: ring.cornerRadius
    property alias contentHeight: flick.contentHeight
    default property alias content: flick.flickableData

    implicitHeight: contentHeight + 2 * inset
    onRevealedChanged: {
        const room = Theme.focusRingWidth;
        const top = revealed ? flick.mapFromItem(revealed, 0, 0).y - room : 0;
        const below = revealed ? top + revealed.height + 2 * room - flick.height : 0;
        if (below < top)
            flick.scroll(Math.min(0, top) + Math.max(0, below));
    }

    FocusRing {
        id: ring
        shown: flick.activeFocus
    }

    Flickable {
        id: flick

        readonly property bool overflows: contentHeight > height

        function scroll(distance: real) {
            contentY = Math.max(0, Math.min(contentHeight - height, contentY + distance));
        }

        anchors.fill: parent
        anchors.margins: area.inset
        anchors.rightMargin: Math.min(1, area.inset)
        interactive: overflows
        clip: overflows
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: overflows
        Accessible.role: Accessible.Pane
        Accessible.name: area.accessibleName
        Accessible.ignored: !overflows
        Accessible.focusable: overflows
        Keys.onUpPressed: scroll(-40)
        Keys.onDownPressed: scroll(40)
        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown;
            if (event.accepted)
                scroll(event.key === Qt.Key_PageUp ? -height : height);
        }
        T.ScrollBar.vertical: SlimScrollBar {}
    }
}
