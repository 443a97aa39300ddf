import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velto.Settings

// Chooses a running application to keep breaks away from. Escape cancels, Return adds the selection.
Popup {
    id: sheet

    required property AddFocusAppModel focusAppModel

    parent: Overlay.overlay
    anchors.centerIn: parent
    width: 440
    height: 480
    modal: true
    padding: 0
    closePolicy: Popup.CloseOnEscape
    onAboutToShow: focusAppModel.present()
    onOpened: search.forceActiveFocus()

    function addSelection() {
        if (sheet.focusAppModel.add())
            sheet.close();
    }

    Overlay.modal: Rectangle {
        color: Qt.rgba(0, 0, 0, Theme.dark ? 0.45 : 0.22)
    }

    background: Rectangle {
        radius: 10
        color: Theme.window
        border.color: Theme.separator
    }

    contentItem: ColumnLayout {
        spacing: 0
        Keys.onReturnPressed: sheet.addSelection()
        Keys.onEnterPressed: sheet.addSelection()

        RowLayout {
            Layout.fillWidth: true
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.topMargin: 16
            Layout.bottomMargin: 8
            Label {
                Layout.fillWidth: true
                text: qsTr("Add Focus App")
                wrapMode: Text.WordWrap
                font.weight: Font.DemiBold
                font.pixelSize: 15
                Accessible.role: Accessible.Heading
            }
            TintedButton {
                objectName: "cancel"
                text: qsTr("Cancel")
                Accessible.name: text
                onClicked: sheet.close()
            }
        }
        Rectangle { Layout.fillWidth: true; implicitHeight: 1; color: Theme.separator }
        RowLayout {
            Layout.fillWidth: true
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.topMargin: 8
            Layout.bottomMargin: 8
            spacing: 8
            SymbolIcon { name: "magnifyingglass"; size: 16; color: Theme.secondaryText }
            TextField {
                id: search
                objectName: "search"
                Layout.fillWidth: true
                placeholderText: qsTr("Search apps…")
                text: sheet.focusAppModel.searchText
                Accessible.name: qsTr("Search apps")
                onTextEdited: sheet.focusAppModel.searchText = text
                Keys.onReturnPressed: sheet.addSelection()
                Keys.onEnterPressed: sheet.addSelection()
                KeyNavigation.down: appList
            }
        }
        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.minimumHeight: 200

            ColumnLayout {
                objectName: "emptyState"
                anchors.centerIn: parent
                visible: appList.count === 0 && !sheet.focusAppModel.isLoading
                spacing: 8
                SymbolIcon {
                    Layout.alignment: Qt.AlignHCenter
                    name: "app.dashed"
                    size: 32
                    color: Theme.secondaryText
                }
                Label {
                    objectName: "emptyText"
                    Layout.alignment: Qt.AlignHCenter
                    text: sheet.focusAppModel.emptyText
                    color: Theme.secondaryText
                    font.pixelSize: Theme.captionSize
                }
            }

            ListView {
                id: appList
                objectName: "appList"
                anchors.fill: parent
                anchors.margins: 6
                clip: true
                model: sheet.focusAppModel.filteredApps
                activeFocusOnTab: true
                keyNavigationEnabled: false
                Accessible.role: Accessible.List
                //: Spoken name of the list of applications running now.
                Accessible.name: qsTr("Running apps")
                // The selection is the model's, by identity: nothing is chosen until the user chooses.
                function moveSelection(step) {
                    const apps = sheet.focusAppModel.filteredApps;
                    if (apps.length === 0)
                        return;
                    let index = apps.findIndex(app => app.bundleIdentifier === sheet.focusAppModel.selectedBundleId);
                    index = index < 0 ? (step > 0 ? 0 : apps.length - 1)
                                      : Math.max(0, Math.min(apps.length - 1, index + step));
                    sheet.focusAppModel.selectedBundleId = apps[index].bundleIdentifier;
                    positionViewAtIndex(index, ListView.Contain);
                }
                Keys.onUpPressed: moveSelection(-1)
                Keys.onDownPressed: moveSelection(1)
                Keys.onReturnPressed: sheet.addSelection()
                Keys.onEnterPressed: sheet.addSelection()
                ScrollBar.vertical: ScrollBar {}

                delegate: ItemDelegate {
                    id: appRow
                    required property var modelData
                    required property int index
                    readonly property bool selected: modelData.bundleIdentifier === sheet.focusAppModel.selectedBundleId

                    width: ListView.view.width
                    focusPolicy: Qt.NoFocus
                    Accessible.name: modelData.name
                    onClicked: sheet.focusAppModel.selectedBundleId = modelData.bundleIdentifier
                    background: Rectangle {
                        radius: 6
                        color: appRow.selected ? Theme.accent : appRow.hovered ? Theme.separator : "transparent"
                    }
                    contentItem: RowLayout {
                        spacing: 8
                        Item {
                            Layout.preferredWidth: 24
                            Layout.preferredHeight: 24
                            Image {
                                anchors.fill: parent
                                visible: appRow.modelData.hasIcon
                                source: appRow.modelData.hasIcon ? appRow.modelData.iconSource : ""
                                sourceSize: Qt.size(48, 48)
                                fillMode: Image.PreserveAspectFit
                                asynchronous: true
                            }
                            SymbolIcon {
                                anchors.fill: parent
                                visible: !appRow.modelData.hasIcon
                                name: "app.dashed"
                                size: 24
                                color: Theme.secondaryText
                            }
                        }
                        ColumnLayout {
                            Layout.fillWidth: true
                            spacing: 2
                            Label {
                                Layout.fillWidth: true
                                text: appRow.modelData.name
                                font.pixelSize: Theme.rowSize
                                color: appRow.selected ? Theme.accentText : Theme.text
                                elide: Text.ElideRight
                            }
                            Label {
                                Layout.fillWidth: true
                                visible: appRow.modelData.bundleIdentifier !== ""
                                text: appRow.modelData.bundleIdentifier
                                font.pixelSize: Theme.captionSize
                                color: appRow.selected ? Theme.accentText : Theme.secondaryText
                                elide: Text.ElideRight
                            }
                        }
                    }
                }
            }
        }
        Rectangle { Layout.fillWidth: true; implicitHeight: 1; color: Theme.separator }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.margins: 16
            spacing: 8
            RowLayout {
                Layout.fillWidth: true
                Label {
                    Layout.fillWidth: true
                    //: Followed by a picker of when the chosen app holds breaks back ("When in Foreground"…).
                    text: qsTr("Pause breaks")
                    // Beside a long picker in another language, even within a word.
                    wrapMode: Text.Wrap
                    font.pixelSize: Theme.rowSize
                }
                ComboBox {
                    objectName: "sheetMode"
                    Layout.preferredWidth: Math.max(240, implicitWidth)
                    Layout.minimumWidth: implicitWidth
                    implicitContentWidthPolicy: ComboBox.WidestText
                    model: sheet.focusAppModel.modeTitles
                    currentIndex: sheet.focusAppModel.selectedMode
                    Accessible.name: qsTr("Pause breaks")
                    onActivated: index => {
                        sheet.focusAppModel.selectedMode = index;
                        currentIndex = Qt.binding(() => sheet.focusAppModel.selectedMode);
                    }
                }
            }
            RowLayout {
                Layout.fillWidth: true
                Item { Layout.fillWidth: true }
                TintedButton {
                    objectName: "addSelected"
                    text: qsTr("Add App")
                    highlighted: true
                    enabled: sheet.focusAppModel.canAdd
                    Accessible.name: text
                    onClicked: sheet.addSelection()
                }
            }
        }
    }
}
