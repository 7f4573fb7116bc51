import QtQuick
import QtQuick.Layouts
import Velmora

/// A titled group of a form: its rows in a panel and a note under it.
ColumnLayout {
    id: section

    property string title
    property string footer
    default property alias content: rows.data

    spacing: 6
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    BodyText {
        Layout.fillWidth: true
        Layout.leftMargin: Theme.formMargin
        text: section.title
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
    Rectangle {
        Layout.fillWidth: true
        implicitHeight: rows.implicitHeight
        radius: Theme.boxRadius
        color: Theme.groupBackground
        border.color: Theme.separator

        ColumnLayout {
            id: rows
            anchors.fill: parent
            spacing: 0
        }
    }
    CaptionText {
        Layout.fillWidth: true
        Layout.leftMargin: Theme.formMargin
        Layout.rightMargin: Theme.formMargin
        text: section.footer
    }
}
