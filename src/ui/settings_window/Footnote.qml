import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// Secondary explanation under a control.
Label {
    Layout.fillWidth: true
    Layout.topMargin: -4
    wrapMode: Text.WordWrap
    color: Theme.secondaryText
    font.pixelSize: Theme.footnoteSize
}
