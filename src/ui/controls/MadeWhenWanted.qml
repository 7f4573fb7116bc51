import QtQuick

/// Makes its one component while it is wanted. A repeater of one or none: no loader makes a component
/// that is bound to another file.
Repeater {
    property bool wanted: false
    readonly property Item item: count > 0 ? itemAt(0) : null

    model: wanted ? 1 : 0
}
