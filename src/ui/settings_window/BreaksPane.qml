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
        title: qsTranslate("SettingsView", "Breaks")
        subtitle: qsTr("Balance your focus and rest with short and long breaks that work for you.")
    }

    FormSection {
        title: qsTr("Short Breaks")
        PickerRow {
            objectName: "workInterval"
            paneModel: pane.paneModel
            //: How long you work between two breaks.
            text: qsTr("Work interval")
            picker: SettingsPaneModel.WorkInterval
        }
        PickerRow {
            objectName: "shortBreakDuration"
            paneModel: pane.paneModel
            //: How long a short break lasts ("Break" is a noun here).
            text: qsTr("Break duration")
            picker: SettingsPaneModel.ShortBreakDuration
        }
    }

    FormSection {
        title: qsTr("Long Breaks")
        SwitchRow {
            objectName: "longBreakEnabled"
            text: qsTr("Enable long breaks")
            value: pane.breaks.longBreakEnabled === true
            onEdited: on => pane.paneModel.setBreakField("longBreakEnabled", on)
        }
        PickerRow {
            objectName: "longBreakDuration"
            visible: pane.breaks.longBreakEnabled === true
            paneModel: pane.paneModel
            //: How long a long break lasts.
            text: qsTr("Duration")
            picker: SettingsPaneModel.LongBreakDuration
        }
        PickerRow {
            objectName: "longBreakFrequency"
            visible: pane.breaks.longBreakEnabled === true
            paneModel: pane.paneModel
            //: How often a long break takes the place of a short one.
            text: qsTr("Frequency")
            picker: SettingsPaneModel.LongBreakFrequency
            pickerWidth: 180
        }
    }

    FormSection {
        title: qsTr("Break Behavior")
        PickerRow {
            objectName: "skipDifficulty"
            paneModel: pane.paneModel
            //: How hard it is to skip a break: Flexible, Gentle or Committed.
            text: qsTr("Skip difficulty")
            picker: SettingsPaneModel.SkipDifficulty
            pickerWidth: 140
        }
        SwitchRow {
            objectName: "allowEarlyEnd"
            text: qsTr("Allow ending break early")
            value: pane.breaks.allowEarlyEnd === true
            onEdited: on => pane.paneModel.setBreakField("allowEarlyEnd", on)
        }
    }

    FormSection {
        title: qsTr("Typing Delay")
        SwitchRow {
            objectName: "delayWhileTyping"
            text: qsTr("Don't show breaks while typing")
            value: pane.breaks.delayWhileTyping === true
            onEdited: on => pane.paneModel.setBreakField("delayWhileTyping", on)
        }
        Footnote {
            objectName: "typingFootnote"
            text: qsTr("Pauses the work timer while you're typing so a break is less likely to interrupt you.")
                  + (pane.paneModel.typingCountsPointer ? " " + qsTr("Any keyboard or pointer input counts on this desktop.") : "")
        }
    }

    FormSection {
        title: qsTr("Lock Screen")
        SwitchRow {
            objectName: "lockScreenOnBreak"
            text: qsTr("Lock screen when break starts")
            value: pane.breaks.lockScreenOnBreak === true
            onEdited: on => pane.paneModel.setLockScreenOnBreak(on)
        }
        Footnote {
            text: qsTr("Locks your session when a break begins, using your desktop's screen locker.")
        }
    }

    FormSection {
        //: Ready-made sets of break settings, chosen with the buttons below.
        title: qsTr("Presets")
        GridLayout {
            Layout.fillWidth: true
            columnSpacing: 8
            rowSpacing: 8
            // One row of four, or two rows of two where the names are too long for one.
            columns: balanced.implicitWidth + deepFocus.implicitWidth + eyeCare.implicitWidth + custom.implicitWidth
                     + 3 * columnSpacing <= width ? 4 : 2
            // The presets' names used elsewhere in Velto, translated once.
            PresetButton {
                id: balanced
                objectName: "presetBalanced"
                paneModel: pane.paneModel
                kind: 0
                //: A preset of break settings.
                text: qsTranslate("BreakPreset", "Balanced")
                Layout.fillWidth: true
            }
            PresetButton {
                id: deepFocus
                objectName: "presetDeepFocus"
                paneModel: pane.paneModel
                kind: 1
                //: A preset of break settings: long stretches of work between breaks.
                text: qsTranslate("BreakPreset", "Deep Focus")
                Layout.fillWidth: true
            }
            PresetButton {
                id: eyeCare
                objectName: "presetEyeCare"
                paneModel: pane.paneModel
                kind: 2
                //: A preset of break settings: frequent short breaks to rest the eyes.
                text: qsTranslate("BreakPreset", "Eye Care")
                Layout.fillWidth: true
            }
            PresetButton {
                id: custom
                objectName: "presetCustom"
                paneModel: pane.paneModel
                kind: 3
                //: Shown as the preset when the break settings match none of the others.
                text: qsTranslate("BreakPreset", "Custom")
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
        title: qsTr("No Screen Locker Found")
        standardButtons: Dialog.Ok
        visible: pane.paneModel.showLockScreenAlert
        onClosed: pane.paneModel.dismissLockScreenAlert()
        Label {
            width: parent.width
            wrapMode: Text.WordWrap
            text: qsTr("Velto could not find a way to lock this session. Install or enable a screen locker (for example your desktop's lock screen, light-locker or xsecurelock), then turn this option on again.")
        }
    }
}
