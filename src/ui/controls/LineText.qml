import QtQuick
import Velmora

/// Text of one line, which ends in an ellipsis where there is no room for all of it. It labels what
/// stands in a column, so it begins where the others begin, whatever language it is in.
BodyText {
    horizontalAlignment: Text.AlignLeft
    wrapMode: Text.NoWrap
    elide: Text.ElideRight
}
