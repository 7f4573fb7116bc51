import QtQuick
import Velmora

/// One symbol, drawn in one colour at any size.
Image {
    id: icon

    property string name
    property real size: 16
    property color color: Theme.primary
    property bool light: false

    width: size
    height: size
    source: SymbolAddress.of(name, color, light)
    sourceSize.width: size
    sourceSize.height: size
    // A wide symbol reaches beyond its place on both sides.
    fillMode: Image.Pad
    Accessible.ignored: true
}
