pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Velmora

/// What starts a run, and shows and steers it while it goes.
ColumnLayout {
    id: section

    required property RunModel model

    readonly property bool ready: model.stage === RunModel.Stage.ready
    readonly property bool paused: model.stage === RunModel.Stage.paused
    readonly property bool going: model.stage === RunModel.Stage.running || paused

    component StatusLine: CaptionText {
        text: section.model.status
    }

    spacing: 10

    PushButton {
        Layout.fillWidth: true
        visible: section.ready
        enabled: section.model.canSend
        kind: PushButton.Prominent
        controlSize: PushButton.Large
        text: section.model.sendTitle
        onClicked: section.model.requestRun()
    }
    StatusLine {
        Layout.fillWidth: true
        visible: section.ready && text.length > 0
    }
    // Keeps the room of two lines through the whole run, and so the buttons in their place.
    Item {
        Layout.fillWidth: true
        visible: !section.ready
        implicitHeight: line.y + Math.max(2 * Math.ceil(face.lineSpacing), line.implicitHeight)

        FontMetrics {
            id: face
            font: line.font
        }
        // While the run stops they stay, faded.
        RunProgress {
            id: bar
            width: parent.width
            opacity: section.going ? 1 : Theme.disabledOpacity
            value: section.model.progress
            total: section.model.progressTotal
        }
        SymbolIcon {
            id: mark
            y: line.y
            visible: section.paused
            name: "exclamationmark.triangle.fill"
            size: Theme.caption + 3
            color: Theme.orange
        }
        StatusLine {
            id: line
            x: mark.visible ? mark.width + 5 : 0
            y: bar.height + section.spacing
            width: parent.width - x
            opacity: bar.opacity
        }
    }
    RowLayout {
        visible: section.going
        spacing: 10

        PushButton {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            kind: PushButton.Destructive
            controlSize: PushButton.Large
            text: "Stop"
            onClicked: section.model.stop()
        }
        PushButton {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            visible: section.paused
            kind: PushButton.Prominent
            controlSize: PushButton.Large
            text: "Resume"
            onClicked: section.model.resume()
        }
    }
    PushButton {
        Layout.fillWidth: true
        visible: !section.ready && !section.going
        enabled: false
        controlSize: PushButton.Large
        text: "Stopping\u2026"
    }

    Shortcut {
        enabled: section.paused
        autoRepeat: false
        sequences: ["Ctrl+Return", "Ctrl+Enter"]
        onActivated: section.model.resume()
    }
}
