pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velmora

/// The title of one menu in the window's menu bar, with its menu. A drag from the press on the title
/// to an item chooses that item.
Item {
    id: title

    required property var modelData
    required property int index
    required property int opened
    required property MenuCommands commands
    required property Item keyboardBefore

    readonly property string text: modelData.title
    readonly property bool open: opened === index

    signal wanted(int place)
    signal dismissed

    implicitWidth: words.implicitWidth + 20
    Accessible.role: Accessible.ButtonMenu
    Accessible.name: title.text
    Accessible.onPressAction: title.wanted(title.index)

    Rectangle {
        anchors.fill: parent
        anchors.topMargin: 3
        anchors.bottomMargin: 3
        radius: Theme.smallRadius
        visible: title.open
        color: Theme.quaternary
    }
    BodyText {
        id: words
        anchors.centerIn: parent
        text: title.text
        font.weight: title.modelData.application ? Font.DemiBold : Font.Normal
        wrapMode: Text.NoWrap
        Accessible.ignored: true
    }

    HoverHandler {
        onHoveredChanged: if (hovered && title.opened >= 0) title.wanted(title.index)
    }
    PointHandler {
        property bool dragged: false

        acceptedButtons: Qt.LeftButton
        onActiveChanged: {
            if (active)
                title.open ? title.dismissed() : title.wanted(title.index);
            else if (dragged && menu.highlighted >= 0)
                menu.pick(menu.highlighted);
            dragged = false;
        }
        onPointChanged: {
            dragged = active && (dragged || point.position.y > title.height);
            if (dragged)
                menu.track(point.scenePosition);
        }
    }

    PopupMenu {
        id: menu
        // Over the alert.
        z: 2
        y: title.height + 2
        topMargin: margins
        modal: false
        visible: title.open
        onAboutToHide: if (title.opened >= 0 && !title.open) focusedBefore = null
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
        onAboutToShow: {
            entries = title.commands.entriesFor(title.index, title.keyboardBefore);
            focusedBefore = title.keyboardBefore;
        }
        onClosed: title.dismissed()
        onChosen: index => title.commands.run(entries[index].command)
        onSideways: delta => title.wanted(title.index + delta)
    }
}
