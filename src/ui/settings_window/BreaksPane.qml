import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velto.Settings

ColumnLayout {
    id: pane

    required property SettingsPaneModel paneModel
    readonly property var breaks: paneModel.breakConfiguration

    spacing: 18

    PaneHeader {
        symbol: "clock"
        title: "Breaks"
        subtitle: "Balance your focus and rest with short and long breaks that work for you."
    }

    FormSection {
        title: "Short Breaks"
        PickerRow {
            objectName: "workInterval"
            paneModel: pane.paneModel
            text: "Work interval"
            picker: SettingsPaneModel.WorkInterval
        }
        PickerRow {
            objectName: "shortBreakDuration"
            paneModel: pane.paneModel
            text: "Break duration"
            picker: SettingsPaneModel.ShortBreakDuration
        }
    }

    FormSection {
        title: "Long Breaks"
        SwitchRow {
            objectName: "longBreakEnabled"
            text: "Enable long breaks"
            value: pane.breaks.longBreakEnabled === true
            onEdited: on => pane.paneModel.setBreakField("longBreakEnabled", on)
        }
        PickerRow {
            objectName: "longBreakDuration"
            visible: pane.breaks.longBreakEnabled === true
            paneModel: pane.paneModel
            text: "Duration"
            picker: SettingsPaneModel.LongBreakDuration
        }
        PickerRow {
            objectName: "longBreakFrequency"
            visible: pane.breaks.longBreakEnabled === true
            paneModel: pane.paneModel
            text: "Frequency"
            picker: SettingsPaneModel.LongBreakFrequency
            pickerWidth: 180
        }
    }

    FormSection {
        title: "Break Behavior"
        PickerRow {
            objectName: "skipDifficulty"
            paneModel: pane.paneModel
            text: "Skip difficulty"
            picker: SettingsPaneModel.SkipDifficulty
            pickerWidth: 140
        }
        SwitchRow {
            objectName: "allowEarlyEnd"
            text: "Allow ending break early"
            value: pane.breaks.allowEarlyEnd === true
            onEdited: on => pane.paneModel.setBreakField("allowEarlyEnd", on)
        }
    }

    FormSection {
        title: "Typing Delay"
        SwitchRow {
            objectName: "delayWhileTyping"
            text: "Don't show breaks while typing"
            value: pane.breaks.delayWhileTyping === true
            onEdited: on => pane.paneModel.setBreakField("delayWhileTyping", on)
        }
        Footnote {
            objectName: "typingFootnote"
            text: "Pauses the work timer while you're typing so a break is less likely to interrupt you."
                  + (pane.paneModel.typingCountsPointer ? " " + qsTr("Any keyboard or pointer input counts on this desktop.") : "")
        }
    }

    FormSection {
        title: "Lock Screen"
        SwitchRow {
            objectName: "lockScreenOnBreak"
            text: "Lock screen when break starts"
            value: pane.breaks.lockScreenOnBreak === true
            onEdited: on => pane.paneModel.setLockScreenOnBreak(on)
        }
        Footnote {
            text: "Locks your session when a break begins, using your desktop's screen locker."
        }
    }

    FormSection {
        title: "Presets"
        RowLayout {
            Layout.fillWidth: true
            spacing: 8
            PresetButton {
                objectName: "presetBalanced"
                paneModel: pane.paneModel
                kind: 0
                text: "Balanced"
                Layout.fillWidth: true
            }
            PresetButton {
                objectName: "presetDeepFocus"
                paneModel: pane.paneModel
                kind: 1
                text: "Deep Focus"
                Layout.fillWidth: true
            }
            PresetButton {
                objectName: "presetEyeCare"
                paneModel: pane.paneModel
                kind: 2
                text: "Eye Care"
                Layout.fillWidth: true
            }
            PresetButton {
                objectName: "presetCustom"
                paneModel: pane.paneModel
                kind: 3
                text: "Custom"
                Layout.fillWidth: true
            }
        }
    }

    Dialog {
        id: lockAlert
        objectName: "lockScreenAlert"
        parent: Overlay.overlay
        anchors.centerIn: parent
        width: 380
        modal: true
        title: "No Screen Locker Found"
        standardButtons: Dialog.Ok
        visible: pane.paneModel.showLockScreenAlert
        onClosed: pane.paneModel.dismissLockScreenAlert()
        Label {
            width: parent.width
            wrapMode: Text.WordWrap
            text: "Velto could not find a way to lock this session. Install or enable a screen locker (for example your desktop's lock screen, light-locker or xsecurelock), then turn this option on again."
        }
    }
}
