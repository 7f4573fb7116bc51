import QtQuick
import QtQuick.Layouts
import Velmora

/// The strip above the list that names what the user still has to do; no strip when there is
/// nothing.
Item {
    id: banners

    required property MainWindowModel model

    readonly property bool aboutNumber: model.banner === MainWindowModel.Banner.sendingNumber
    readonly property color tint: Theme[model.bannerColor]

    visible: model.banner !== MainWindowModel.Banner.none
    implicitHeight: visible ? strip.implicitHeight + 2 * 8 + 1 : 0
    Accessible.role: Accessible.AlertMessage
    Accessible.name: banners.model.bannerText

    Rectangle {
        anchors.fill: parent
        color: Qt.rgba(banners.tint.r, banners.tint.g, banners.tint.b, 0.1)
    }
    RowLayout {
        id: strip
        x: Theme.padding
        y: 8
        width: parent.width - 2 * Theme.padding
        spacing: banners.aboutNumber ? 10 : 12

        SymbolIcon {
            name: banners.model.bannerSymbol
            color: banners.tint
        }
        BodyText {
            Layout.fillWidth: true
            text: banners.model.bannerText
            font.pixelSize: Theme.callout
            Accessible.ignored: true
        }
        PushButton {
            controlSize: PushButton.Small
            text: banners.model.bannerButton
            onClicked: banners.model.followBanner()
        }
    }
    HorizontalDivider {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
