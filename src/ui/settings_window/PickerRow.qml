import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velto.Settings

// A label, a flexible space and a pop-up picker whose shown option the model decides (none when the stored
// value is no option).
RowLayout {
    id: row

    required property SettingsPaneModel paneModel
    property string text
    property int picker
    property real pickerWidth: 100
    readonly property alias comboBox: box

    Layout.fillWidth: true
    spacing: 12

    Label {
        Layout.fillWidth: true
        text: row.text
        wrapMode: Text.WordWrap
        verticalAlignment: Text.AlignVCenter
    }
    ComboBox {
        id: box
        objectName: "picker"
        // As wide as the longest option when that needs more room than the row asks for.
        Layout.preferredWidth: Math.max(row.pickerWidth, implicitWidth)
        Layout.minimumWidth: implicitWidth
        implicitContentWidthPolicy: ComboBox.WidestText
        model: row.paneModel.optionLabels(row.picker)
        currentIndex: row.paneModel.revision >= 0 ? row.paneModel.selection(row.picker) : -1
        displayText: currentIndex < 0 ? "" : currentText
        Accessible.name: row.text
        onActivated: index => {
            row.paneModel.choose(row.picker, index);
            currentIndex = Qt.binding(() => row.paneModel.revision >= 0 ? row.paneModel.selection(row.picker) : -1);
        }
    }
}
