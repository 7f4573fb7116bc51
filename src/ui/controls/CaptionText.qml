import QtQuick
import Velmora

/// The small note beside or under what it is about.
BodyText {
    color: Theme.secondary
    font.pixelSize: Theme.caption
}
