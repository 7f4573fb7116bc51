pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Velmora

/// The chosen list's people below their toolbar, or why there is nobody to show.
ColumnLayout {
    id: pane

    required property RecipientsModel model

    spacing: 0

    RecipientsToolbar {
        Layout.fillWidth: true
        model: pane.model
    }
    HorizontalDivider {
        Layout.fillWidth: true
    }
    // Content lies on the ground of texts, as the log does.
    Rectangle {
        Layout.fillWidth: true
        Layout.fillHeight: true
        color: Theme.textBackground

        EmptyState {
            anchors.fill: parent
            visible: pane.model.showsNobody
            icon: pane.model.emptyState.icon
            title: pane.model.emptyState.title
            message: pane.model.emptyState.message
        }
        RecipientsList {
            anchors.fill: parent
            visible: !pane.model.showsNobody
            recipients: pane.model
        }
    }
}
