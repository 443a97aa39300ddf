import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velto.Settings

ColumnLayout {
    id: pane

    required property SettingsPaneModel paneModel
    readonly property var schedule: paneModel.schedule

    spacing: 18

    PaneHeader {
        symbol: "gear"
        title: "General"
        subtitle: "Control the core behavior of Velto and how it fits into your workflow."
    }

    FormSection {
        title: "App Settings"
        SwitchRow {
            objectName: "isEnabled"
            text: "Enable Velto"
            value: pane.paneModel.isEnabled
            onEdited: on => pane.paneModel.isEnabled = on
        }
        SwitchRow {
            objectName: "showTimerInMenuBar"
            text: "Show timer in menu bar"
            value: pane.paneModel.showTimerInMenuBar
            onEdited: on => pane.paneModel.showTimerInMenuBar = on
        }
        SwitchRow {
            objectName: "launchAtLogin"
            text: "Launch at login"
            value: pane.paneModel.launchAtLogin
            onEdited: on => pane.paneModel.launchAtLogin = on
        }
    }

    FormSection {
        title: "Schedule"
        SwitchRow {
            objectName: "useOfficeHours"
            text: "Use Office Hours"
            value: pane.schedule.isEnabled === true
            onEdited: on => pane.paneModel.setScheduleField("isEnabled", on)
        }
        RowLayout {
            objectName: "activeDays"
            visible: pane.schedule.isEnabled === true
            Layout.fillWidth: true
            spacing: 3
            Label {
                Layout.fillWidth: true
                text: "Active days"
            }
            Repeater {
                model: [{ day: 1, title: "Sun" }, { day: 2, title: "Mon" }, { day: 3, title: "Tue" },
                        { day: 4, title: "Wed" }, { day: 5, title: "Thu" }, { day: 6, title: "Fri" },
                        { day: 7, title: "Sat" }]
                delegate: TintedButton {
                    required property var modelData
                    text: modelData.title
                    checkable: true
                    checked: (pane.schedule.activeDays || []).includes(modelData.day)
                    highlighted: checked
                    implicitWidth: 40
                    leftPadding: 2
                    rightPadding: 2
                    font.pixelSize: 11
                    Accessible.name: modelData.title
                    onToggled: {
                        pane.paneModel.setDayActive(modelData.day, checked);
                        checked = Qt.binding(() => (pane.schedule.activeDays || []).includes(modelData.day));
                    }
                }
            }
        }
        RowLayout {
            visible: pane.schedule.isEnabled === true
            Layout.fillWidth: true
            spacing: 16
            TimeField {
                objectName: "startTime"
                text: "Start"
                hour: pane.paneModel.revision >= 0 ? pane.paneModel.shownTime(true).hour : 0
                minute: pane.paneModel.revision >= 0 ? pane.paneModel.shownTime(true).minute : 0
                onEdited: (hour, minute) => pane.paneModel.setTime(true, hour, minute)
            }
            TimeField {
                objectName: "endTime"
                text: "End"
                hour: pane.paneModel.revision >= 0 ? pane.paneModel.shownTime(false).hour : 0
                minute: pane.paneModel.revision >= 0 ? pane.paneModel.shownTime(false).minute : 0
                onEdited: (hour, minute) => pane.paneModel.setTime(false, hour, minute)
            }
            Item { Layout.fillWidth: true }
        }
    }

    FormSection {
        Button {
            objectName: "resetToDefaults"
            text: "Reset to Defaults"
            flat: true
            palette.buttonText: Theme.red
            Accessible.name: text
            onClicked: pane.paneModel.resetToDefaults()
        }
    }
}
