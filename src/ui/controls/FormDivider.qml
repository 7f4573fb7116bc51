import QtQuick.Layouts
import Velmora

/// The hairline between two rows of a form's group.
HorizontalDivider {
    Layout.fillWidth: true
    Layout.leftMargin: Theme.formMargin
    Layout.rightMargin: Theme.formMargin
}
