import QtQuick
import QtQuick.Layouts
import Velmora

/// The strip above the list that names what the user still has to do; no strip when there is
/// nothing.
Item {
    id: banners

    required property MainWindowModel model

    readonly property banner banner: model.banner
    readonly property color tint: Theme.colorOf(banner.tone, false)

    visible: banner.text.length > 0
    implicitHeight: visible ? strip.implicitHeight + 2 * 8 + 1 : 0
    Accessible.role: Accessible.AlertMessage
    Accessible.name: banner.text

    Rectangle {
        anchors.fill: parent
        color: Qt.rgba(banners.tint.r, banners.tint.g, banners.tint.b, 0.1)
    }
    RowLayout {
        id: strip
        x: Theme.padding
        y: 8
        width: parent.width - 2 * Theme.padding
        spacing: banners.banner.tone === Look.Tone.red ? 12 : 10

        SymbolIcon {
            name: banners.banner.symbol
            color: banners.tint
        }
        BodyText {
            Layout.fillWidth: true
            text: banners.banner.text
            font.pixelSize: Theme.callout
            Accessible.ignored: true
        }
        PushButton {
            controlSize: PushButton.Small
            text: banners.banner.button
            onClicked: banners.model.followBanner()
        }
    }
    HorizontalDivider {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
