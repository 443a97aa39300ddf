import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// The centred symbol, title and subtitle every pane opens with.
ColumnLayout {
    id: header

    property string symbol
    property string title
    property string subtitle

    Layout.fillWidth: true
    Layout.topMargin: 6
    Layout.bottomMargin: 4
    spacing: 8

    SymbolIcon {
        Layout.alignment: Qt.AlignHCenter
        name: header.symbol
        size: 32
        color: Theme.accent
    }
    Label {
        Layout.alignment: Qt.AlignHCenter
        text: header.title
        font.pixelSize: 22
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
    Label {
        Layout.fillWidth: true
        text: header.subtitle
        color: Theme.secondaryText
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignHCenter
    }
}
