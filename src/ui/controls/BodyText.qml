import QtQuick
import Velmora

/// Text as the interface writes it: plain, wrapping, in the system's face.
Text {
    color: Theme.primary
    linkColor: Theme.accentText
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    font.family: Theme.fontFamily
    font.pixelSize: Theme.body
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: text.length === 0
}
