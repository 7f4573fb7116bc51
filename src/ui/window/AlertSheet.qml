import QtQuick
import Velmora

/// The alert, as a sheet.
AlertBox {
    required property MainWindowModel model

    content: model.alert
    onActed: model.stopAndQuit()
    onDismissed: model.dismissAlert()
}
