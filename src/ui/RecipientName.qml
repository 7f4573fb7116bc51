import QtQuick
import Velmora

/// Who a person is: the name, the company beside it, and whether they have been sent the text.
Flow {
    id: line

    property string name
    property string company
    property string sentText
    property string shade

    spacing: 6

    BodyText {
        id: nameText
        width: Math.min(implicitWidth, parent.width)
        text: line.name
        font.pixelSize: Theme.headline
        font.weight: Font.DemiBold
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
    }
    BodyText {
        width: Math.min(implicitWidth, parent.width)
        visible: text.length > 0
        text: line.company
        color: Theme["secondary" + line.shade]
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
    }
    LabelWithSymbol {
        height: nameText.height
        visible: text.length > 0
        text: line.sentText
        symbol: "checkmark.seal.fill"
        textColor: Theme["green" + line.shade]
        fontSize: Theme.caption
        spacing: 4
    }
}
