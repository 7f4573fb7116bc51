import QtQuick
import QtQuick.Templates as T
import Velmora

/// One line of text to type in. What is typed is told by `edited`; the bound text may follow.
/// Without the keyboard it shows the beginning of its text.
T.TextField {
    id: field

    property alias placeholder: field.placeholderText
    property bool plain: false
    property bool small: false
    property string accessibleName: placeholder

    signal edited(string text)

    implicitWidth: 160
    implicitHeight: plain ? Math.ceil(contentHeight) : small ? Theme.smallControlHeight
                                                             : Theme.controlHeight
    leftPadding: plain ? 0 : 6
    rightPadding: leftPadding
    verticalAlignment: TextInput.AlignVCenter
    color: Theme.primary
    placeholderTextColor: Theme.tertiary
    selectionColor: Theme.selection
    selectedTextColor: Theme.primary
    selectByMouse: true
    validator: OneLine
    font.family: Theme.fontFamily
    font.pixelSize: small ? Theme.caption : Theme.body
    opacity: enabled || plain ? 1 : Theme.disabledOpacity
    Accessible.name: accessibleName
    Accessible.description: enabled ? "" : Theme.unavailable
    onTextEdited: field.edited(field.text)
    // A menu only borrows the keyboard.
    onActiveFocusChanged: if (!activeFocus && focusReason !== Qt.PopupFocusReason) cursorPosition = 0
    onTextChanged: if (!activeFocus) cursorPosition = 0
    Keys.onMenuPressed: menu.openAtCaret(cursorRectangle)

    TextMenu {
        id: menu
        field: field
    }

    LineText {
        x: field.leftPadding
        width: field.width - field.leftPadding - field.rightPadding
        height: field.height
        verticalAlignment: Text.AlignVCenter
        horizontalAlignment: field.horizontalAlignment
        visible: field.length === 0 && field.preeditText.length === 0
        text: field.placeholder
        color: field.placeholderTextColor
        font: field.font
        Accessible.ignored: true
    }

    background: FieldSurface {
        visible: !field.plain
        focused: field.activeFocus
    }
}
