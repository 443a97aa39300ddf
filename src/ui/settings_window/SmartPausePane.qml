import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velto.Settings

ColumnLayout {
    id: pane

    required property SettingsPaneModel paneModel
    required property AddFocusAppModel focusAppModel
    readonly property var smartPause: paneModel.smartPauseSettings
    readonly property var focusApps: smartPause.deepFocusApps || []
    readonly property alias addFocusAppSheet: sheet

    spacing: 18

    PaneHeader {
        symbol: "pause.circle"
        title: qsTranslate("SettingsView", "Smart Pause")
        subtitle: qsTr("Let Velto adapt to what you're doing and pause breaks when it matters.")
    }

    // Shown only where this desktop hides something the switches below rely on.
    RowLayout {
        visible: pane.paneModel.detectionNotice !== ""
        Layout.fillWidth: true
        spacing: 8
        SymbolIcon {
            Layout.alignment: Qt.AlignTop
            Layout.topMargin: 1
            name: "info.circle"
            size: 15
            color: Theme.secondaryText
        }
        Label {
            objectName: "detectionNotice"
            Layout.fillWidth: true
            text: pane.paneModel.detectionNotice
            wrapMode: Text.WordWrap
            color: Theme.secondaryText
            font.pixelSize: Theme.footnoteSize + 1
        }
    }

    // Velto's GNOME Shell extension, on GNOME only: its state, why it matters while it does not run, and the way
    // to enable it.
    RowLayout {
        objectName: "gnomeExtension"
        visible: pane.paneModel.gnomeExtensionText !== ""
        Layout.fillWidth: true
        spacing: 8
        SymbolIcon {
            Layout.alignment: Qt.AlignTop
            Layout.topMargin: 1
            name: pane.paneModel.gnomeExtensionActive ? "checkmark.circle" : "info.circle"
            size: 15
            color: Theme.secondaryText
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2
            Label {
                objectName: "gnomeExtensionState"
                Layout.fillWidth: true
                text: pane.paneModel.gnomeExtensionText
                wrapMode: Text.WordWrap
                font.pixelSize: Theme.footnoteSize + 1
            }
            Label {
                objectName: "gnomeExtensionExplanation"
                visible: text !== ""
                Layout.fillWidth: true
                text: pane.paneModel.gnomeExtensionExplanation
                wrapMode: Text.WordWrap
                color: Theme.secondaryText
                font.pixelSize: Theme.footnoteSize + 1
            }
        }
        Button {
            objectName: "enableGnomeExtension"
            visible: pane.paneModel.canEnableGnomeExtension
            enabled: !pane.paneModel.enablingGnomeExtension
            Layout.alignment: Qt.AlignVCenter
            text: qsTr("Enable")
            onClicked: pane.paneModel.enableGnomeExtension()
        }
    }

    FormSection {
        title: qsTr("Activity Detection")
        SwitchRow {
            objectName: "detectMeetings"
            text: qsTr("Pause during meetings or calls")
            value: pane.smartPause.detectMeetings === true
            onEdited: on => pane.paneModel.setSmartPauseField("detectMeetings", on)
        }
        Footnote {
            text: qsTr("Pauses when you are likely on a call or in a meeting—not while you are only browsing the web.")
        }
        SwitchRow {
            objectName: "detectVideoPlayback"
            text: qsTr("Pause during video playback")
            value: pane.smartPause.detectVideoPlayback === true
            onEdited: on => pane.paneModel.setSmartPauseField("detectVideoPlayback", on)
        }
        PickerRow {
            objectName: "videoDetectionMode"
            visible: pane.smartPause.detectVideoPlayback === true
            paneModel: pane.paneModel
            text: qsTr("Video detection mode")
            picker: SettingsPaneModel.VideoDetectionMode
            pickerWidth: 210
        }
        Footnote {
            visible: pane.smartPause.detectVideoPlayback === true
            //: "Frontmost only" and "Include background" name the choices of the video detection mode above.
            text: qsTr("Frontmost only checks the active app. Include background also pauses when a supported player is playing behind another window.")
        }
        SwitchRow {
            objectName: "detectScreenRecording"
            text: qsTr("Pause during screen recording")
            value: pane.smartPause.detectScreenRecording === true
            onEdited: on => pane.paneModel.setSmartPauseField("detectScreenRecording", on)
        }
        SwitchRow {
            objectName: "detectFullscreenGaming"
            text: qsTr("Pause during fullscreen gaming")
            value: pane.smartPause.detectFullscreenGaming === true
            onEdited: on => pane.paneModel.setSmartPauseField("detectFullscreenGaming", on)
        }
    }

    FormSection {
        title: qsTr("Idle Detection")
        SwitchRow {
            objectName: "detectIdleTime"
            text: qsTr("Detect idle time")
            value: pane.smartPause.detectIdleTime === true
            onEdited: on => pane.paneModel.setSmartPauseField("detectIdleTime", on)
        }
        PickerRow {
            objectName: "idleThreshold"
            visible: pane.smartPause.detectIdleTime === true
            paneModel: pane.paneModel
            //: Followed by a picker of minutes ("5 min"): the work timer starts over after this long without input.
            text: qsTr("Reset timer after idle for")
            picker: SettingsPaneModel.IdleThreshold
        }
    }

    FormSection {
        //: How long Smart Pause waits after an activity ends before the work timer runs again.
        title: qsTr("Cooldown")
        PickerRow {
            objectName: "cooldown"
            paneModel: pane.paneModel
            text: qsTr("Delay after activity ends")
            picker: SettingsPaneModel.Cooldown
        }
        Footnote {
            text: qsTr("Waits this long after a Smart Pause reason clears before your work timer starts counting down again.")
        }
    }

    FormSection {
        //: Apps that hold breaks back while you use them.
        title: qsTr("Focus Apps")
        Label {
            Layout.fillWidth: true
            wrapMode: Text.WordWrap
            color: Theme.secondaryText
            font.pixelSize: Theme.captionSize
            text: qsTr("Pause breaks when a specific app is active or open. Each app can use foreground only, foreground while fullscreen, or whenever it is running.")
        }
        Label {
            objectName: "noFocusApps"
            visible: pane.focusApps.length === 0
            Layout.fillWidth: true
            Layout.topMargin: 4
            Layout.bottomMargin: 4
            horizontalAlignment: Text.AlignHCenter
            color: Theme.secondaryText
            font.pixelSize: Theme.captionSize
            text: qsTr("No focus apps configured")
        }
        Repeater {
            objectName: "focusAppRows"
            // A count, not the list: editing one entry must not rebuild every row.
            model: pane.focusApps.length
            delegate: FocusAppRow {
                required property int index
                paneModel: pane.paneModel
                app: pane.focusApps[index] || ({})
                onModeChosen: mode => pane.paneModel.setFocusAppMode(index, mode)
                onDeleted: pane.paneModel.deleteFocusApp(app.bundleIdentifier)
            }
        }
        Button {
            objectName: "addApp"
            Accessible.name: qsTr("Add App…")
            onClicked: sheet.open()
            contentItem: RowLayout {
                spacing: 6
                SymbolIcon { name: "plus.circle"; size: 16; color: Theme.accent }
                Label { text: qsTr("Add App…") }
            }
        }
    }

    AddFocusAppSheet {
        id: sheet
        objectName: "addFocusAppSheet"
        focusAppModel: pane.focusAppModel
    }
}
