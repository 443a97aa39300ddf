import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// A labelled switch that shows a stored value and reports the user's change; the store decides what stays.
RowLayout {
    id: row

    property string text
    property bool value
    signal edited(bool on)

    Layout.fillWidth: true
    spacing: 12

    Label {
        Layout.fillWidth: true
        Layout.alignment: Qt.AlignVCenter
        text: row.text
        wrapMode: Text.WordWrap
        verticalAlignment: Text.AlignVCenter
    }
    Switch {
        id: toggle
        objectName: "switch"
        checked: row.value
        Accessible.name: row.text
        onToggled: {
            row.edited(checked);
            // The user's click replaced the binding; the stored value is the truth again.
            checked = Qt.binding(() => row.value);
        }
    }
}
