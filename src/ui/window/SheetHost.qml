pragma ComponentBehavior: Bound
import QtQuick
import Velmora

/// The sheets that can cover the window, at most one at a time, and the alert over them.
Item {
    id: host

    required property Presentation presentation
    required property int titleBottom

    readonly property MainWindowModel window: presentation.window

    component HostedSheet: SheetPopup {
        titleBottom: host.titleBottom
        covered: host.window.alertShown
        // A sheet that opens under the alert takes the keyboard with it.
        onActiveFocusChanged: if (activeFocus && covered) alert.forceActiveFocus()
    }

    HostedSheet {
        shown: host.window.sheet === MainWindowModel.Sheet.terms
        file: "TermsSheet.qml"
        handed: ({ firstRun: host.presentation.firstRun })
    }
    HostedSheet {
        shown: host.window.sheet === MainWindowModel.Sheet.confirm
        file: "ConfirmSendSheet.qml"
        handed: ({ model: host.presentation.confirm })
    }
    HostedSheet {
        shown: host.window.sheet === MainWindowModel.Sheet.fullDiskAccessHelp
        file: "FullDiskAccessHelpSheet.qml"
        handed: ({ firstRun: host.presentation.firstRun })
    }
    HostedSheet {
        shown: host.window.sheet === MainWindowModel.Sheet.senderSetup
        file: "SenderSetupSheet.qml"
        handed: ({ firstRun: host.presentation.firstRun })
    }
    HostedSheet {
        id: alert
        z: 1
        covered: false
        shown: host.window.alertShown
        file: "AlertSheet.qml"
        handed: ({ model: host.window })
    }
}
