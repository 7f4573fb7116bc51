import QtQuick
import Velmora

/// A hairline between two parts side by side.
Rectangle {
    implicitWidth: 1
    implicitHeight: 40
    color: Theme.separator
    Accessible.ignored: true
}
