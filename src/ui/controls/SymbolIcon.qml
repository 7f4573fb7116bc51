import QtQuick
import Velmora

/// One symbol, drawn in one colour at any size.
Image {
    id: icon

    property string name
    property real size: 16
    property color color: Theme.primary
    property string weight: "regular"

    width: size
    height: size
    source: SymbolAddress.of(name, color, weight)
    sourceSize.width: size
    sourceSize.height: size
    // A symbol that is wider than high needs a wider place, and stands in its middle.
    fillMode: Image.Pad
    Accessible.ignored: true
}
