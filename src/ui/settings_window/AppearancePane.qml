import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velto.Settings

ColumnLayout {
    id: pane

    required property SettingsPaneModel paneModel
    readonly property var appearance: paneModel.breakAppearance
    readonly property var messages: appearance.customMessages || []
    // Gradient is the third option the Style picker offers.
    readonly property bool isGradient: paneModel.revision >= 0 && paneModel.selection(SettingsPaneModel.BackgroundType) === 2

    spacing: 18

    PaneHeader {
        symbol: "paintbrush"
        title: qsTranslate("SettingsView", "Appearance")
        subtitle: qsTr("Personalize your break screen to make every pause feel intentional.")
    }

    FormSection {
        //: The break screen's background.
        title: qsTr("Background")
        PickerRow {
            objectName: "backgroundType"
            paneModel: pane.paneModel
            //: The kind of background: paper, gradient…
            text: qsTr("Style")
            picker: SettingsPaneModel.BackgroundType
            pickerWidth: 180
        }
        RowLayout {
            objectName: "gradientTheme"
            visible: pane.isGradient
            Layout.fillWidth: true
            spacing: 12
            Label {
                Layout.fillWidth: true
                //: The colours of the gradient background.
                text: qsTr("Theme")
            }
            ComboBox {
                id: themeBox
                objectName: "picker"
                Layout.preferredWidth: 180
                model: pane.paneModel.optionLabels(SettingsPaneModel.GradientTheme)
                currentIndex: pane.paneModel.revision >= 0 ? pane.paneModel.selection(SettingsPaneModel.GradientTheme) : -1
                Accessible.name: qsTr("Theme")
                onActivated: index => {
                    pane.paneModel.choose(SettingsPaneModel.GradientTheme, index);
                    currentIndex = Qt.binding(() => pane.paneModel.revision >= 0 ? pane.paneModel.selection(SettingsPaneModel.GradientTheme) : -1);
                }
                contentItem: RowLayout {
                    spacing: 8
                    ThemeSwatch {
                        Layout.leftMargin: 8
                        visible: themeBox.currentIndex >= 0
                        colors: pane.paneModel.themeColors(themeBox.currentIndex)
                    }
                    Label {
                        Layout.fillWidth: true
                        text: themeBox.currentIndex >= 0 ? themeBox.currentText : ""
                        elide: Text.ElideRight
                    }
                }
                delegate: ItemDelegate {
                    id: themeRow
                    required property int index
                    required property string modelData
                    width: ListView.view ? ListView.view.width : implicitWidth
                    highlighted: themeBox.highlightedIndex === index
                    Accessible.name: modelData
                    contentItem: RowLayout {
                        spacing: 8
                        ThemeSwatch { colors: pane.paneModel.themeColors(themeRow.index) }
                        Label { Layout.fillWidth: true; text: themeRow.modelData }
                    }
                }
            }
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: 12
            //: How much the break screen's background is darkened.
            Label { text: qsTr("Dim level") }
            Slider {
                objectName: "overlayOpacity"
                Layout.fillWidth: true
                from: 0.5
                to: 1.0
                value: pane.appearance.overlayOpacity || 0.5
                Accessible.name: qsTr("Dim level")
                onMoved: pane.paneModel.setAppearanceField("overlayOpacity", value)
            }
            Label {
                objectName: "dimLevelText"
                Layout.preferredWidth: Math.max(40, implicitWidth)
                horizontalAlignment: Text.AlignRight
                text: pane.paneModel.dimLevelText
            }
        }
    }

    FormSection {
        //: Which screens show the break.
        title: qsTr("Display")
        PickerRow {
            objectName: "screenDisplayMode"
            paneModel: pane.paneModel
            //: Followed by a picker: all displays or the primary display only.
            text: qsTr("Show break on")
            picker: SettingsPaneModel.ScreenDisplayMode
            pickerWidth: 180
        }
        Label {
            objectName: "displayModeExplanation"
            Layout.fillWidth: true
            Layout.topMargin: -4
            text: pane.paneModel.displayModeExplanation
            color: Theme.secondaryText
            font.pixelSize: Theme.captionSize
        }
    }

    FormSection {
        //: The lines the break screen shows, one picked at random.
        title: qsTr("Messages")
        Label {
            text: qsTr("Your messages:")
            color: Theme.secondaryText
            font.pixelSize: Theme.captionSize
        }
        Repeater {
            objectName: "messageRows"
            // A count, not the list: typing into one message must not rebuild the fields.
            model: pane.messages.length
            delegate: RowLayout {
                id: messageRow
                required property int index
                Layout.fillWidth: true
                spacing: 6
                TextField {
                    objectName: "message"
                    Layout.fillWidth: true
                    placeholderText: qsTr("Message")
                    text: messageRow.index < pane.messages.length ? pane.messages[messageRow.index] : ""
                    //: Spoken name of a message field; %1 is its position in the list, from 1.
                    Accessible.name: qsTr("Message %1").arg(messageRow.index + 1)
                    onTextEdited: pane.paneModel.setMessage(messageRow.index, text)
                }
                ToolButton {
                    objectName: "removeMessage"
                    flat: true
                    enabled: pane.paneModel.canRemoveMessages
                    //: Spoken name of the button that removes a message; %1 is its position in the list, from 1.
                    Accessible.name: qsTr("Remove message %1").arg(messageRow.index + 1)
                    onClicked: pane.paneModel.removeMessage(messageRow.index)
                    contentItem: SymbolIcon {
                        name: "minus.circle"
                        size: 18
                        color: pane.paneModel.canRemoveMessages ? Theme.red : Theme.secondaryText
                    }
                }
            }
        }
        Button {
            objectName: "addMessage"
            //: Adds a message to the list.
            Accessible.name: qsTr("Add")
            onClicked: pane.paneModel.addMessage()
            contentItem: RowLayout {
                spacing: 6
                SymbolIcon { name: "plus"; size: 14; color: Theme.accent }
                Label { text: qsTr("Add") }
            }
        }
    }
}
