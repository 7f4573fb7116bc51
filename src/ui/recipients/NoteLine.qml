pragma ComponentBehavior: Bound
import QtQuick
import Velmora

/// The personal note of one person: its field, or the offer to add one.
FocusScope {
    id: line

    property string note
    property color linkColor
    property color placeholderColor
    property bool showsField: false
    property bool showsOffer: false
    property bool fieldEnabled: true
    /// Whether Tab stops here.
    property bool stops: false

    /// The keyboard enters the field, or asks for it.
    signal entered
    signal edited(string text)
    /// The field gives the keyboard back.
    signal finished

    /// Puts the keyboard on the offer; false where there is none.
    function reach(): bool {
        if (showsOffer)
            offer.item.forceActiveFocus(Qt.TabFocusReason);
        return showsOffer;
    }
    function enter(): bool {
        if (showsOffer)
            entered();
        if (showsField && fieldEnabled)
            field.item.forceActiveFocus(Qt.TabFocusReason);
        return activeFocus;
    }

    // When it comes again, it comes to the row.
    function pass() {
        Window.activeFocusItem.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason);
        focus = false;
    }

    implicitHeight: childrenRect.height

    // Most rows need neither, and making a field is what costs.
    MadeWhenWanted {
        id: offer
        wanted: line.showsOffer

        PushButton {
            kind: PushButton.Link
            fontSize: Theme.caption
            symbol: "square.and.pencil"
            text: "Add note"
            tint: line.linkColor
            focusPolicy: line.stops ? Qt.TabFocus : Qt.NoFocus
            onClicked: line.enter()
            Keys.onEscapePressed: line.finished()
            Keys.onLeftPressed: line.finished()
            Keys.onTabPressed: line.pass()
            Keys.onBacktabPressed: line.finished()
        }
    }
    MadeWhenWanted {
        id: field
        wanted: line.showsField

        TextEntry {
            width: line.width
            focus: true
            activeFocusOnTab: line.stops
            small: true
            placeholder: "Personal note"
            placeholderTextColor: line.placeholderColor
            text: line.note
            enabled: line.fieldEnabled
            onActiveFocusChanged: if (activeFocus) line.entered()
            onEdited: text => line.edited(text)
            Keys.onUpPressed: {}
            Keys.onDownPressed: {}
            Keys.onReturnPressed: line.finished()
            Keys.onEnterPressed: line.finished()
            Keys.onEscapePressed: line.finished()
            Keys.onTabPressed: line.pass()
            Keys.onBacktabPressed: line.finished()
        }
    }
}
