import QtQuick
import Velmora

/// Text of one line, which ends in an ellipsis where there is no room for all of it.
BodyText {
    wrapMode: Text.NoWrap
    elide: Text.ElideRight
}
