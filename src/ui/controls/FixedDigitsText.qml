import QtQuick
import Velmora

/// A line of text with digits of one width, in the system's face.
FixedDigits {
    color: Theme.primary
    fontFamily: Theme.fontFamily
    pixelSize: Theme.body
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
