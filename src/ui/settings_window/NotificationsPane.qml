import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velto.Settings

ColumnLayout {
    id: pane

    required property SettingsPaneModel paneModel
    readonly property var notifications: paneModel.notificationSettings

    spacing: 18

    PaneHeader {
        symbol: "bell"
        title: "Notifications"
        subtitle: "Choose how Velto keeps you informed without getting in the way."
    }

    FormSection {
        title: "Heads-Up"
        SwitchRow {
            objectName: "showPreBreakNotification"
            text: "Notify before breaks"
            value: pane.notifications.showPreBreakNotification === true
            onEdited: on => pane.paneModel.setNotificationField("showPreBreakNotification", on)
        }
        PickerRow {
            objectName: "preBreakNotificationTime"
            visible: pane.notifications.showPreBreakNotification === true
            paneModel: pane.paneModel
            text: "Show notification"
            picker: SettingsPaneModel.PreBreakNotification
            pickerWidth: 140
        }
    }

    FormSection {
        title: "Sound"
        SwitchRow {
            objectName: "playSoundOnBreakStart"
            text: "Chime when break starts"
            value: pane.notifications.playSoundOnBreakStart === true
            onEdited: on => pane.paneModel.setNotificationField("playSoundOnBreakStart", on)
        }
        SwitchRow {
            objectName: "playSoundOnBreakEnd"
            text: "Chime when break ends"
            value: pane.notifications.playSoundOnBreakEnd === true
            onEdited: on => pane.paneModel.setNotificationField("playSoundOnBreakEnd", on)
        }
    }

    FormSection {
        title: "Volume"
        Slider {
            objectName: "soundVolume"
            Layout.fillWidth: true
            from: 0
            to: 1
            value: pane.notifications.soundVolume || 0
            Accessible.name: "Chime volume"
            onMoved: pane.paneModel.setNotificationField("soundVolume", value)
        }
    }
}
