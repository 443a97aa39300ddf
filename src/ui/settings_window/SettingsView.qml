import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velto.Settings

// The settings window: the categories on the left, the chosen category's pane on the right.
ApplicationWindow {
    id: window

    required property SettingsPaneModel paneModel
    required property AddFocusAppModel focusAppModel
    required property HistoryPaneModel historyModel
    property int selectedTab: 0
    property int detailLayoutRemountPass: 0
    property bool sidebarVisible: true
    readonly property var tabs: [
        //: A settings category in the window's sidebar, and the title of its pane.
        { title: qsTr("General"), symbol: "gear" },
        //: A settings category (plural noun: the breaks from work).
        { title: qsTr("Breaks"), symbol: "clock" },
        //: A settings category: the work timer pauses by itself during calls, videos, games and the like.
        { title: qsTr("Smart Pause"), symbol: "pause.circle" },
        { title: qsTr("Notifications"), symbol: "bell" },
        { title: qsTr("Appearance"), symbol: "paintbrush" },
        //: A settings category: the record of breaks taken and skipped.
        { title: qsTr("History"), symbol: "chart.bar" },
        { title: qsTr("About"), symbol: "info.circle" }
    ]
    readonly property alias detailPane: paneLoader.item

    //: The window title.
    title: qsTr("Velto Settings")
    width: 740
    height: 580
    minimumWidth: 740
    minimumHeight: 480
    maximumWidth: 740
    maximumHeight: 580
    flags: Qt.Window | Qt.WindowTitleHint | Qt.WindowSystemMenuHint | Qt.WindowCloseButtonHint
           | Qt.WindowMinimizeButtonHint
    color: Theme.window
    // The controls take the desktop palette as it is now, also when it turned dark after start.
    palette.window: Theme.palette.window
    palette.windowText: Theme.palette.windowText
    palette.base: Theme.palette.base
    palette.alternateBase: Theme.palette.alternateBase
    palette.text: Theme.palette.text
    palette.button: Theme.palette.button
    palette.buttonText: Theme.palette.buttonText
    palette.highlight: Theme.palette.highlight
    palette.highlightedText: Theme.palette.highlightedText
    palette.light: Theme.palette.light
    palette.midlight: Theme.palette.midlight
    palette.mid: Theme.palette.mid
    palette.dark: Theme.palette.dark
    palette.shadow: Theme.palette.shadow
    palette.placeholderText: Theme.palette.placeholderText
    palette.toolTipBase: Theme.palette.base
    palette.toolTipText: Theme.palette.text

    // Rebuild the pane once after the window first shows, so it lays out at the window's final size.
    Component.onCompleted: {
        if (detailLayoutRemountPass === 0)
            Qt.callLater(() => window.detailLayoutRemountPass = 1);
    }

    header: ToolBar {
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 8
            anchors.rightMargin: 8
            ToolButton {
                objectName: "sidebarToggle"
                //: A toolbar button that shows or hides the list of settings categories.
                Accessible.name: qsTr("Sidebar")
                Accessible.description: qsTr("Show or hide the settings categories list")
                ToolTip.text: qsTr("Show or hide the settings categories list")
                ToolTip.visible: hovered
                ToolTip.delay: 600
                onClicked: window.sidebarVisible = !window.sidebarVisible
                contentItem: RowLayout {
                    spacing: 6
                    SymbolIcon { name: "sidebar.left"; size: 18; color: Theme.text }
                    Label { text: qsTr("Sidebar") }
                }
            }
            Label {
                Layout.fillWidth: true
                text: "Velto"
                font.weight: Font.DemiBold
                horizontalAlignment: Text.AlignHCenter
                rightPadding: 90
            }
        }
    }

    // A change that could not be saved still applies for now; one quiet line under every pane says so.
    footer: Rectangle {
        objectName: "saveProblem"
        visible: window.paneModel.saveFailed
        implicitHeight: saveProblemRow.implicitHeight + 14
        color: Theme.sidebar

        Rectangle {
            width: parent.width
            height: 1
            color: Theme.separator
        }
        RowLayout {
            id: saveProblemRow
            anchors.fill: parent
            anchors.leftMargin: 16
            anchors.rightMargin: 16
            spacing: 8
            SymbolIcon { name: "exclamationmark.circle"; size: 15; color: Theme.secondaryText }
            Label {
                objectName: "saveProblemText"
                Layout.fillWidth: true
                text: qsTr("Your changes could not be saved. They apply until Velto quits.")
                color: Theme.secondaryText
                font.pixelSize: Theme.footnoteSize + 1
                wrapMode: Text.WordWrap
                Accessible.role: Accessible.AlertMessage
            }
        }
    }

    RowLayout {
        anchors.fill: parent
        spacing: 0

        Rectangle {
            objectName: "sidebar"
            visible: window.sidebarVisible
            Layout.preferredWidth: 220
            Layout.minimumWidth: 220
            Layout.maximumWidth: 220
            Layout.fillHeight: true
            color: Theme.sidebar

            ListView {
                id: tabList
                objectName: "tabList"
                anchors.fill: parent
                anchors.margins: 10
                spacing: 2
                model: window.tabs
                currentIndex: window.selectedTab
                focus: true
                keyNavigationEnabled: true
                activeFocusOnTab: true
                Accessible.role: Accessible.List
                Accessible.name: qsTr("Settings categories")
                Keys.onUpPressed: window.selectedTab = Math.max(0, window.selectedTab - 1)
                Keys.onDownPressed: window.selectedTab = Math.min(window.tabs.length - 1, window.selectedTab + 1)

                delegate: ItemDelegate {
                    id: tabRow
                    required property int index
                    required property var modelData
                    readonly property bool selected: index === window.selectedTab

                    width: ListView.view.width
                    height: 34
                    focusPolicy: Qt.NoFocus
                    Accessible.name: modelData.title
                    Accessible.role: Accessible.ListItem
                    onClicked: window.selectedTab = index

                    background: Rectangle {
                        radius: 6
                        color: tabRow.selected ? Theme.accent
                                               : tabRow.hovered ? Theme.separator : "transparent"
                    }
                    contentItem: RowLayout {
                        spacing: 8
                        SymbolIcon {
                            name: tabRow.modelData.symbol
                            size: 17
                            color: tabRow.selected ? Theme.accentText : Theme.accent
                        }
                        // A long category name is cut with an ellipsis rather than pushing the dot out.
                        Label {
                            Layout.fillWidth: true
                            // Rounded up: a layout's whole pixels would cut the last fraction of a letter.
                            Layout.maximumWidth: Math.ceil(implicitWidth)
                            text: tabRow.modelData.title
                            color: tabRow.selected ? Theme.accentText : Theme.text
                            elide: Text.ElideRight
                        }
                        SymbolIcon {
                            objectName: "updateDot"
                            Layout.minimumWidth: size
                            visible: tabRow.modelData.symbol === "info.circle" && window.paneModel.updateAvailable
                            name: "circle.fill"
                            size: 7
                            color: tabRow.selected ? Theme.accentText : Theme.accent
                            Accessible.role: Accessible.StaticText
                            //: Spoken for the dot beside About when a newer build exists.
                            Accessible.name: qsTr("Update available")
                        }
                        Item { Layout.fillWidth: true }
                    }
                }
            }
        }

        Rectangle {
            visible: window.sidebarVisible
            Layout.preferredWidth: 1
            Layout.fillHeight: true
            color: Theme.separator
        }

        ScrollView {
            id: detail
            objectName: "detail"
            Layout.fillWidth: true
            Layout.fillHeight: true
            contentWidth: availableWidth
            ScrollBar.vertical.policy: ScrollBar.AlwaysOn
            ScrollBar.horizontal.policy: ScrollBar.AlwaysOff

            Loader {
                id: paneLoader
                objectName: "paneLoader"
                // The key: a new value builds the pane again.
                property int remountKey: window.detailLayoutRemountPass
                x: 24
                y: 16
                width: detail.availableWidth - 48
                height: item ? item.implicitHeight + 32 : 0
                sourceComponent: [generalPane, breaksPane, smartPausePane, notificationsPane, appearancePane,
                                  historyPane, aboutPane][window.selectedTab]
                onRemountKeyChanged: {
                    active = false;
                    active = true;
                }
            }
        }
    }

    Component { id: generalPane; GeneralPane { paneModel: window.paneModel } }
    Component { id: breaksPane; BreaksPane { paneModel: window.paneModel } }
    Component {
        id: smartPausePane
        SmartPausePane { paneModel: window.paneModel; focusAppModel: window.focusAppModel }
    }
    Component { id: notificationsPane; NotificationsPane { paneModel: window.paneModel } }
    Component { id: appearancePane; AppearancePane { paneModel: window.paneModel } }
    Component { id: historyPane; HistoryPane { historyModel: window.historyModel } }
    Component { id: aboutPane; AboutPane { paneModel: window.paneModel } }
}
