import QtQuick
import QtQuick.Controls
import Velto.Settings

// Applies a break preset; tinted while the store's selection is this preset.
TintedButton {
    id: button

    required property SettingsPaneModel paneModel
    property int kind

    highlighted: paneModel.breakPresetSelection === kind
    Accessible.name: text
    onClicked: paneModel.applyPreset(kind)
}
