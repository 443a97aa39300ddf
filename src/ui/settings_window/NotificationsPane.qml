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
        title: qsTranslate("SettingsView", "Notifications")
        subtitle: qsTr("Choose how Velto keeps you informed without getting in the way.")
    }

    FormSection {
        //: A section title: being told a little before a break comes.
        title: qsTr("Heads-Up")
        SwitchRow {
            objectName: "showPreBreakNotification"
            text: qsTr("Notify before breaks")
            value: pane.notifications.showPreBreakNotification === true
            onEdited: on => pane.paneModel.setNotificationField("showPreBreakNotification", on)
        }
        PickerRow {
            objectName: "preBreakNotificationTime"
            visible: pane.notifications.showPreBreakNotification === true
            paneModel: pane.paneModel
            //: Followed by a picker of lead times ("1 min before").
            text: qsTr("Show notification")
            picker: SettingsPaneModel.PreBreakNotification
            pickerWidth: 140
        }
    }

    FormSection {
        title: qsTr("Sound")
        SwitchRow {
            objectName: "playSoundOnBreakStart"
            text: qsTr("Chime when break starts")
            value: pane.notifications.playSoundOnBreakStart === true
            onEdited: on => pane.paneModel.setNotificationField("playSoundOnBreakStart", on)
        }
        SwitchRow {
            objectName: "playSoundOnBreakEnd"
            text: qsTr("Chime when break ends")
            value: pane.notifications.playSoundOnBreakEnd === true
            onEdited: on => pane.paneModel.setNotificationField("playSoundOnBreakEnd", on)
        }
    }

    FormSection {
        title: qsTr("Volume")
        Slider {
            objectName: "soundVolume"
            Layout.fillWidth: true
            from: 0
            to: 1
            value: pane.notifications.soundVolume || 0
            Accessible.name: qsTr("Chime volume")
            onMoved: pane.paneModel.setNotificationField("soundVolume", value)
        }
    }
}
