pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velmora

/// The title of one menu in the window's menu bar, with its menu.
T.AbstractButton {
    id: title

    required property var modelData
    required property int index
    required property int opened
    required property MenuCommands commands
    required property Item keyboardBefore

    readonly property bool open: opened === index

    signal wanted(int place)
    signal dismissed

    implicitWidth: implicitContentWidth + 20
    text: modelData.title
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    onPressed: title.open ? title.dismissed() : title.wanted(title.index)
    onHoveredChanged: if (title.hovered && title.opened >= 0) title.wanted(title.index)
    Keys.onDownPressed: title.wanted(title.index)
    Keys.onReturnPressed: title.wanted(title.index)
    Keys.onSpacePressed: title.wanted(title.index)
    Accessible.role: Accessible.ButtonMenu
    Accessible.name: title.text
    Accessible.onPressAction: title.wanted(title.index)

    contentItem: BodyText {
        text: title.text
        font.weight: title.modelData.application ? Font.DemiBold : Font.Normal
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.NoWrap
        Accessible.ignored: true
    }
    background: Rectangle {
        anchors.fill: parent
        anchors.topMargin: 3
        anchors.bottomMargin: 3
        radius: 5
        color: title.open || title.visualFocus ? Theme.quaternary : "transparent"
    }

    PopupMenu {
        y: title.height + 2
        modal: false
        visible: title.open
        entries: title.modelData.entries
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
        onAboutToShow: focusedBefore = title.keyboardBefore
        onAboutToHide: if (title.opened >= 0 && !title.open) focusedBefore = null
        onClosed: title.dismissed()
        onChosen: index => title.commands.run(title.modelData.entries[index].command)
        onSideways: delta => title.wanted(title.index + delta)
    }
}
