import QtQuick.Layouts
import Velmora

/// What a group of a form has to say under its rows; no room without words.
BodyText {
    Layout.fillWidth: true
    Layout.leftMargin: Theme.formMargin
    Layout.rightMargin: Theme.formMargin
    Layout.bottomMargin: Theme.formMargin
    visible: text.length > 0
    color: Theme.secondary
    font.pixelSize: Theme.callout
}
