pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Velmora

/// A search field: the glass, what is typed, and a button that clears it. Escape clears it too.
FocusScope {
    id: search

    property alias text: field.text
    property alias placeholder: field.placeholder

    signal edited(string text)

    implicitWidth: 200
    implicitHeight: row.implicitHeight + 8
    opacity: enabled ? 1 : Theme.disabledOpacity

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: Theme.quaternary

        FocusRing { shown: field.activeFocus }
    }

    RowLayout {
        id: row
        anchors.fill: parent
        anchors.leftMargin: 8
        anchors.rightMargin: 8
        anchors.topMargin: 4
        anchors.bottomMargin: 4
        spacing: 6

        SymbolIcon {
            name: "magnifyingglass"
            size: 14
            color: Theme.secondary
        }
        TextEntry {
            id: field
            Layout.fillWidth: true
            focus: true
            plain: true
            small: true
            placeholderTextColor: Theme.secondary
            onEdited: text => search.edited(text)
            Keys.onEscapePressed: event => {
                event.accepted = field.length > 0;
                if (event.accepted)
                    search.edited("");
            }
        }
        PushButton {
            visible: field.length > 0
            kind: PushButton.Plain
            symbol: "xmark.circle.fill"
            tint: Theme.secondary
            fontSize: Theme.caption
            implicitHeight: 14
            Accessible.name: "Clear search"
            onClicked: {
                field.forceActiveFocus(Qt.OtherFocusReason);
                search.edited("");
            }
        }
    }
}
