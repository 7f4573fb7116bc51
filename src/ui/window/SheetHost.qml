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
        sheet: TermsSheet {
            firstRun: host.presentation.firstRun
        }
    }
    HostedSheet {
        shown: host.window.sheet === MainWindowModel.Sheet.confirm
        sheet: ConfirmSendSheet {
            model: host.presentation.confirm
        }
    }
    HostedSheet {
        shown: host.window.sheet === MainWindowModel.Sheet.fullDiskAccessHelp
        sheet: FullDiskAccessHelpSheet {
            firstRun: host.presentation.firstRun
        }
    }
    HostedSheet {
        shown: host.window.sheet === MainWindowModel.Sheet.senderSetup
        sheet: SenderSetupSheet {
            firstRun: host.presentation.firstRun
        }
    }
    HostedSheet {
        id: alert
        z: 1
        covered: false
        shown: host.window.alertShown
        sheet: AlertBox {
            content: host.window.alert
            onActed: host.window.stopAndQuit()
            onDismissed: host.window.dismissAlert()
        }
    }
}
