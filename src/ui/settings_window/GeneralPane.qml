import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velto.Settings

ColumnLayout {
    id: pane

    required property SettingsPaneModel paneModel
    readonly property var schedule: paneModel.schedule

    // The days Sunday first, turned to start on firstDay (0 for Sunday, as Qt's locales count).
    function weekStartingOn(firstDay, days) {
        return days.slice(firstDay).concat(days.slice(0, firstDay));
    }

    spacing: 18

    PaneHeader {
        symbol: "gear"
        // The sidebar's name for the pane, translated once.
        title: qsTranslate("SettingsView", "General")
        subtitle: qsTr("Control the core behavior of Velto and how it fits into your workflow.")
    }

    FormSection {
        title: qsTr("App Settings")
        SwitchRow {
            objectName: "isEnabled"
            text: qsTr("Enable Velto")
            value: pane.paneModel.isEnabled
            onEdited: on => pane.paneModel.isEnabled = on
        }
        SwitchRow {
            objectName: "showTimerInMenuBar"
            //: The menu bar is the panel that holds Velto's tray icon.
            text: qsTr("Show timer in menu bar")
            value: pane.paneModel.showTimerInMenuBar
            onEdited: on => pane.paneModel.showTimerInMenuBar = on
        }
        SwitchRow {
            objectName: "launchAtLogin"
            text: qsTr("Launch at login")
            value: pane.paneModel.launchAtLogin
            onEdited: on => pane.paneModel.launchAtLogin = on
        }
    }

    FormSection {
        title: qsTr("Schedule")
        SwitchRow {
            objectName: "useOfficeHours"
            text: qsTr("Use Office Hours")
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
                text: qsTr("Active days")
                wrapMode: Text.WordWrap
            }
            Repeater {
                // The short day names used elsewhere in Velto, translated once, in the week of the user's
                // locale: starting on its first day (Sunday in the US, Monday in most of Europe).
                model: pane.weekStartingOn(Qt.locale().firstDayOfWeek, [
                    //: Sunday, shortened for a small toggle of the office-hours days.
                    { day: 1, title: qsTranslate("Weekday", "Sun") },
                    //: Monday, shortened for a small toggle of the office-hours days.
                    { day: 2, title: qsTranslate("Weekday", "Mon") },
                    //: Tuesday, shortened for a small toggle of the office-hours days.
                    { day: 3, title: qsTranslate("Weekday", "Tue") },
                    //: Wednesday, shortened for a small toggle of the office-hours days.
                    { day: 4, title: qsTranslate("Weekday", "Wed") },
                    //: Thursday, shortened for a small toggle of the office-hours days.
                    { day: 5, title: qsTranslate("Weekday", "Thu") },
                    //: Friday, shortened for a small toggle of the office-hours days.
                    { day: 6, title: qsTranslate("Weekday", "Fri") },
                    //: Saturday, shortened for a small toggle of the office-hours days.
                    { day: 7, title: qsTranslate("Weekday", "Sat") }
                ])
                delegate: TintedButton {
                    required property var modelData
                    text: modelData.title
                    checkable: true
                    checked: (pane.schedule.activeDays || []).includes(modelData.day)
                    highlighted: checked
                    // At least 40 wide, wider for a day name that needs it.
                    implicitWidth: Math.max(40, implicitContentWidth + leftPadding + rightPadding)
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
                //: The time office hours begin.
                text: qsTr("Start")
                hour: pane.paneModel.revision >= 0 ? pane.paneModel.shownTime(true).hour : 0
                minute: pane.paneModel.revision >= 0 ? pane.paneModel.shownTime(true).minute : 0
                onEdited: (hour, minute) => pane.paneModel.setTime(true, hour, minute)
            }
            TimeField {
                objectName: "endTime"
                //: The time office hours end.
                text: qsTr("End")
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
            text: qsTr("Reset to Defaults")
            flat: true
            palette.buttonText: Theme.red
            Accessible.name: text
            onClicked: pane.paneModel.resetToDefaults()
        }
    }
}
