import QtQuick.Controls.Basic

ApplicationWindow {
    id: root

    required property Presentation presentation

    title: root.presentation.window.title
}
