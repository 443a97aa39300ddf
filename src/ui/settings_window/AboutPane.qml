import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velto.Settings

ColumnLayout {
    id: pane

    required property SettingsPaneModel paneModel

    spacing: 18
    // Every showing of the pane asks the update service quietly whether there is something new.
    Component.onCompleted: paneModel.aboutShown()

    ColumnLayout {
        Layout.fillWidth: true
        Layout.minimumHeight: 172
        spacing: 14

        Item {
            Layout.alignment: Qt.AlignHCenter
            Layout.preferredWidth: 96
            Layout.preferredHeight: 96
            Rectangle {
                // The icon's soft shadow, a little below it.
                anchors.fill: icon
                anchors.topMargin: 3
                anchors.bottomMargin: -3
                radius: 22
                color: Qt.rgba(0, 0, 0, 0.12)
                visible: icon.visible
            }
            Image {
                id: icon
                objectName: "appIcon"
                anchors.fill: parent
                visible: String(pane.paneModel.appIconSource) !== ""
                source: pane.paneModel.appIconSource
                sourceSize: Qt.size(192, 192)
                fillMode: Image.PreserveAspectFit
                smooth: true
                mipmap: true
            }
            SymbolIcon {
                anchors.centerIn: parent
                visible: !icon.visible
                name: "app.fill"
                size: 92
                color: Theme.accent
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 8
            Label {
                Layout.alignment: Qt.AlignHCenter
                text: qsTranslate("SettingsView", "About")
                font.pixelSize: 20
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }
            Label {
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                color: Theme.secondaryText
                text: qsTr("Velto is a small menu bar companion for sustainable focus and breaks.")
            }
        }
    }

    FormSection {
        ItemDelegate {
            objectName: "website"
            Layout.fillWidth: true
            //: Spoken name of the website link; %1 is the site's address without "https://".
            Accessible.name: qsTr("Website %1").arg(pane.paneModel.websiteDisplayName)
            onClicked: Qt.openUrlExternally(pane.paneModel.websiteUrl)
            background: null
            padding: 0
            topPadding: 3
            bottomPadding: 3
            contentItem: RowLayout {
                Label { text: qsTr("Website") }
                Item { Layout.fillWidth: true }
                Label { text: pane.paneModel.websiteDisplayName; color: Theme.accent }
                SymbolIcon { name: "arrow.up.right.square"; size: 15; color: Theme.secondaryText }
            }
        }
        ItemDelegate {
            objectName: "feedback"
            Layout.fillWidth: true
            //: Spoken name of the feedback link; %1 is an e-mail address.
            Accessible.name: qsTr("Send Feedback to %1").arg(pane.paneModel.contactAddress)
            onClicked: Qt.openUrlExternally(pane.paneModel.feedbackUrl)
            background: null
            padding: 0
            topPadding: 3
            bottomPadding: 3
            contentItem: RowLayout {
                Label { text: qsTr("Send Feedback") }
                Item { Layout.fillWidth: true }
                Label { text: pane.paneModel.contactAddress; color: Theme.accent }
                SymbolIcon { name: "envelope"; size: 15; color: Theme.secondaryText }
            }
        }
        RowLayout {
            Layout.fillWidth: true
            //: Velto's version number follows.
            Label { text: qsTr("Version") }
            Item { Layout.fillWidth: true }
            TextEdit {
                objectName: "versionText"
                text: pane.paneModel.versionText
                readOnly: true
                selectByMouse: true
                color: Theme.secondaryText
                selectionColor: Theme.accent
                selectedTextColor: Theme.accentText
                font: versionFont.font
                //: Spoken name of the version number; %1 is the number, like 1.4 (27).
                Accessible.name: qsTr("Version %1").arg(text)
            }
            Label { id: versionFont; visible: false }
        }
        ColumnLayout {
            objectName: "updateNudge"
            visible: pane.paneModel.updateAvailable
            Layout.fillWidth: true
            Layout.topMargin: 4
            Layout.bottomMargin: 4
            spacing: 8
            RowLayout {
                Layout.fillWidth: true
                spacing: 12
                SymbolIcon {
                    Layout.alignment: Qt.AlignTop
                    name: "arrow.down.circle.fill"
                    size: 18
                    color: Theme.accent
                }
                ColumnLayout {
                    Layout.fillWidth: true
                    spacing: 4
                    Label {
                        text: qsTr("A newer build is available")
                        font.pixelSize: 15
                        font.weight: Font.DemiBold
                    }
                    Label {
                        objectName: "updateNudgeText"
                        Layout.fillWidth: true
                        wrapMode: Text.WordWrap
                        text: pane.paneModel.updateNudgeText
                        font.pixelSize: 13
                        color: Theme.secondaryText
                    }
                }
            }
            Button {
                objectName: "reviewUpdate"
                Layout.leftMargin: 22
                flat: true
                //: A button: look at the newer version before installing it ("Review" is a verb).
                text: qsTr("Review update")
                font.pixelSize: 13
                font.weight: Font.Medium
                palette.buttonText: Theme.accent
                Accessible.name: text
                onClicked: pane.paneModel.checkForUpdates()
            }
        }
        Label {
            objectName: "updatedBySystem"
            visible: pane.paneModel.updatedBySystem
            Layout.fillWidth: true
            wrapMode: Text.WordWrap
            text: qsTr("Updates come from your system's package manager.")
            font.pixelSize: 13
            color: Theme.secondaryText
        }
        TintedButton {
            objectName: "checkForUpdates"
            visible: !pane.paneModel.updatedBySystem
            text: qsTr("Check for Updates…")
            Accessible.name: text
            onClicked: pane.paneModel.checkForUpdates()
        }
    }
}
