import QtQuick
import Velmora

/// A hairline between two parts, one above the other.
Rectangle {
    implicitWidth: 40
    implicitHeight: 1
    color: Theme.separator
    Accessible.ignored: true
}
