import QtQuick
import QtQuick.Layouts
import Velmora

/// One row of a form's group: what it is about and, at the trailing side, the controls for it. Where
/// they are off, its words step back as they do.
RowLayout {
    id: row

    property string title

    Layout.fillWidth: true
    Layout.fillHeight: false
    Layout.leftMargin: Theme.formMargin
    Layout.rightMargin: Theme.formMargin
    Layout.minimumHeight: 40
    spacing: 8

    LineText {
        Layout.fillWidth: true
        opacity: row.enabled ? 1 : Theme.disabledOpacity
        text: row.title
        visible: row.title.length > 0
    }
}
