pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velmora

/// The rows of the people. One stop for the keyboard: Up and Down move, Space checks, Return enters
/// the row's note or makes one, Tab goes to it or to the offer of one, as does Right to the offer.
ListView {
    id: list

    required property RecipientsModel recipients

    function goTo(row: int) {
        currentIndex = Math.max(0, Math.min(count - 1, row));
        if (currentIndex === 0)
            goToBeginning();
        else
            positionViewAtIndex(currentIndex, ListView.Contain);
    }
    function goToBeginning() {
        contentY = originY - topMargin;
    }
    function enterNote() {
        (currentItem as RecipientRow)?.enterNote();
    }

    readonly property int revision: recipients.revision
    property bool complete: false
    readonly property int page: Math.max(1, Math.floor(height / 80))

    model: recipients
    clip: true
    pixelAligned: true
    reuseItems: true
    cacheBuffer: 200
    topMargin: 6
    bottomMargin: 10
    boundsBehavior: Flickable.StopAtBounds
    highlightFollowsCurrentItem: false
    keyNavigationEnabled: false
    activeFocusOnTab: true
    Accessible.role: Accessible.List
    Accessible.name: "People"
    T.ScrollBar.vertical: SlimScrollBar {}

    ReadingOrder {
        rows: list.contentItem
    }

    // A row that grows while its note is typed: after the list has laid it out.
    Timer {
        id: revealing
        interval: 0
        onTriggered: list.goTo(list.currentIndex)
    }
    RedrawnArea {
        parent: list
        anchors.fill: parent
        z: 1
        moved: Qt.point(list.revision, list.contentY)
    }

    Keys.onUpPressed: goTo(currentIndex - 1)
    Keys.onDownPressed: goTo(currentIndex + 1)
    Keys.onSpacePressed: event => {
        if (!event.isAutoRepeat)
            recipients.toggle(currentIndex);
    }
    Keys.onReturnPressed: enterNote()
    Keys.onEnterPressed: enterNote()
    Keys.onRightPressed: event => {
        const row = currentItem as RecipientRow;
        event.accepted = row !== null && row.reachNote();
    }
    Keys.onPressed: event => {
        const to = {
            [Qt.Key_Home]: 0,
            [Qt.Key_End]: count - 1,
            [Qt.Key_PageUp]: currentIndex - page,
            [Qt.Key_PageDown]: currentIndex + page
        }[event.key];
        event.accepted = to !== undefined;
        if (event.accepted)
            goTo(to);
    }

    // Tells the model which rows to spare when a search changes nearly all of them. A list that
    // stands at its beginning shows the beginning of what the search leaves.
    onContentYChanged: recipients.topRow = indexAt(width / 2, contentY + 1)
    onRevisionChanged: if (complete && recipients.topRow <= 0) goToBeginning()
    Component.onCompleted: complete = true

    delegate: RecipientRow {
        width: list.width
        recipients: list.recipients
        onActivated: list.currentIndex = index
        onWritten: revealing.restart()
        onTaken: list.forceActiveFocus(Qt.OtherFocusReason)
    }
}
