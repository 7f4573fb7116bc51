import QtQuick
import QtQuick.Layouts
import Velmora

/// The middle column: what is still to do, and the chosen list or why there is none.
ColumnLayout {
    id: detail

    required property Presentation presentation

    spacing: 0

    BannersView {
        id: banners
        Layout.fillWidth: true
        model: detail.presentation.window
    }
    EmptyState {
        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: !detail.presentation.window.showsList
        above: banners.visible ? banners.height : 0
        icon: detail.presentation.window.emptyState.icon
        title: detail.presentation.window.emptyState.title
        message: detail.presentation.window.emptyState.message
        button: detail.presentation.window.emptyState.button
        onActivated: detail.presentation.window.openContactsSettings()
    }
    RecipientsPane {
        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: detail.presentation.window.showsList
        model: detail.presentation.recipients
    }
}
