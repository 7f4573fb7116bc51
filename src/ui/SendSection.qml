pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Velmora

/// What starts a run, and shows and steers it while it goes.
ColumnLayout {
    id: section

    required property ComposeModel model

    readonly property bool ready: model.stage === ComposeModel.Stage.ready
    readonly property bool paused: model.stage === ComposeModel.Stage.paused
    readonly property bool going: model.stage === ComposeModel.Stage.running || paused

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
    RunProgress {
        Layout.fillWidth: true
        visible: section.going
        value: section.model.progress
        total: section.model.progressTotal
    }
    BodyText {
        Layout.fillWidth: true
        visible: section.model.showsStatus && text.length > 0
        text: section.model.status
        color: Theme.secondary
        font.pixelSize: Theme.caption
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
