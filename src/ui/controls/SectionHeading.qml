import QtQuick
import Velmora

/// The heading of a section of the composer.
BodyText {
    font.pixelSize: Theme.headline
    font.weight: Font.DemiBold
    Accessible.role: Accessible.Heading
}
