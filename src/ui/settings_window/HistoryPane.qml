import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velto.Settings

ColumnLayout {
    id: pane

    required property HistoryPaneModel historyModel
    readonly property var today: historyModel.today
    readonly property bool showsHistory: historyModel.hasHistory

    spacing: 18
    // Read afresh at every showing; nothing polls while the pane is open.
    Component.onCompleted: historyModel.refresh()

    PaneHeader {
        symbol: "chart.bar"
        title: qsTranslate("SettingsView", "History")
        subtitle: qsTr("See how your breaks went, day by day.")
    }

    BusyIndicator {
        objectName: "loading"
        Layout.alignment: Qt.AlignHCenter
        visible: pane.historyModel.loading && !pane.showsHistory
        running: visible
        Accessible.name: qsTr("Loading history")
    }

    ColumnLayout {
        objectName: "emptyState"
        visible: !pane.historyModel.loading && !pane.showsHistory
        Layout.fillWidth: true
        Layout.topMargin: 8
        Layout.bottomMargin: 8
        spacing: 8
        SymbolIcon {
            Layout.alignment: Qt.AlignHCenter
            name: "chart.bar"
            size: 40
            color: Theme.secondaryText
        }
        Label {
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            text: qsTr("No history yet")
            font.pixelSize: 15
            font.weight: Font.DemiBold
        }
        Label {
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            color: Theme.secondaryText
            text: qsTr("Each break you take or skip will show up here.")
        }
    }

    FormSection {
        objectName: "todaySection"
        visible: pane.showsHistory
        //: A section title of the History pane: today's figures.
        title: qsTr("Today")
        GridLayout {
            Layout.fillWidth: true
            columns: 2
            columnSpacing: 16
            rowSpacing: 12
            Repeater {
                model: [
                    { value: String(pane.today.taken), caption: qsTr("Breaks taken") },
                    //: Breaks skipped: under today's count, and in the legend of the chart.
                    { value: String(pane.today.skipped), caption: qsTr("Skipped") },
                    { value: pane.today.longestStretchText,
                      //: Today's longest time of work without a break in between.
                      caption: qsTr("Longest stretch without a break") },
                    { value: pane.today.smartPauseText,
                      //: How long Smart Pause held the break timer today.
                      caption: qsTr("Held by Smart Pause") }
                ]
                delegate: ColumnLayout {
                    id: figure
                    required property var modelData
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    Layout.alignment: Qt.AlignTop
                    spacing: 2
                    //: A figure of today, spoken: %1 is what it counts, %2 the figure, as in "Breaks taken: 5".
                    Accessible.name: qsTr("%1: %2").arg(modelData.caption).arg(modelData.value)
                    Accessible.role: Accessible.StaticText
                    Label {
                        Layout.fillWidth: true
                        text: figure.modelData.value
                        wrapMode: Text.WordWrap
                        font.pixelSize: 20
                        font.weight: Font.DemiBold
                        Accessible.ignored: true
                    }
                    Label {
                        Layout.fillWidth: true
                        text: figure.modelData.caption
                        wrapMode: Text.WordWrap
                        color: Theme.secondaryText
                        font.pixelSize: Theme.captionSize
                        Accessible.ignored: true
                    }
                }
            }
        }
    }

    FormSection {
        objectName: "chartSection"
        visible: pane.showsHistory
        title: qsTr("Breaks per Day")
        RowLayout {
            Layout.fillWidth: true
            spacing: 6
            Repeater {
                model: [{ days: 7, title: qsTr("Last 7 days") }, { days: 30, title: qsTr("Last 30 days") }]
                delegate: TintedButton {
                    required property var modelData
                    objectName: "range" + modelData.days
                    text: modelData.title
                    highlighted: pane.historyModel.chartDays === modelData.days
                    font.pixelSize: Theme.captionSize
                    Accessible.name: text
                    Accessible.checkable: true
                    Accessible.checked: highlighted
                    onClicked: pane.historyModel.chartDays = modelData.days
                }
            }
            Item { Layout.fillWidth: true }
        }

        // Breaks taken (below) and skipped (on top) a day, on three lines: none, half the top and the top.
        Item {
            id: chart
            objectName: "chart"
            readonly property var entries: pane.historyModel.chartEntries
            readonly property int maximum: pane.historyModel.chartMaximum
            readonly property real axisWidth: Math.ceil(axisMetrics.width) + 8
            readonly property real labelHeight: Math.ceil(axisMetrics.height) + 6
            readonly property real plotTop: Math.ceil(axisMetrics.height / 2)
            readonly property real plotBottom: height - labelHeight
            readonly property real plotHeight: plotBottom - plotTop
            readonly property real slot: (width - axisWidth) / Math.max(1, entries.length)
            // Every day's label where they fit; on a narrow slot every second or third, counted back from today.
            readonly property int labelStep: entries.length > 7 ? Math.max(1, Math.ceil((dayMetrics.width + 6) / slot)) : 1
            property int currentIndex: entries.length - 1

            function focusBar(index) {
                const bar = bars.itemAt(Math.max(0, Math.min(entries.length - 1, index)));
                if (bar)
                    bar.forceActiveFocus(Qt.TabFocusReason);
            }

            Layout.fillWidth: true
            Layout.preferredHeight: 150
            Layout.topMargin: 4
            onEntriesChanged: currentIndex = entries.length - 1
            Accessible.role: Accessible.Chart
            Accessible.name: qsTr("Breaks per Day")

            TextMetrics { id: axisMetrics; font.pixelSize: Theme.footnoteSize; text: String(chart.maximum) }
            TextMetrics { id: dayMetrics; font.pixelSize: Theme.footnoteSize; text: "30" }

            Repeater {
                model: [0, 0.5, 1]
                delegate: Item {
                    id: gridLine
                    required property real modelData
                    y: chart.plotBottom - modelData * chart.plotHeight
                    width: chart.width
                    Rectangle {
                        x: chart.axisWidth
                        width: parent.width - chart.axisWidth
                        height: 1
                        color: Theme.separator
                    }
                    Label {
                        width: chart.axisWidth - 8
                        y: -height / 2
                        horizontalAlignment: Text.AlignRight
                        text: String(Math.round(gridLine.modelData * chart.maximum))
                        color: Theme.secondaryText
                        font.pixelSize: Theme.footnoteSize
                        Accessible.ignored: true
                    }
                }
            }

            Repeater {
                id: bars
                model: chart.entries
                delegate: Item {
                    id: bar
                    required property int index
                    required property var modelData
                    readonly property real barWidth: Math.min(26, Math.max(3, chart.slot * 0.6))
                    readonly property real takenHeight: chart.plotHeight * modelData.taken / chart.maximum
                    readonly property real skippedHeight: chart.plotHeight * modelData.skipped / chart.maximum
                    readonly property bool isToday: index === chart.entries.length - 1

                    x: chart.axisWidth + index * chart.slot
                    width: chart.slot
                    height: chart.height
                    // One stop in the tab order for the whole chart; the arrow keys go from day to day.
                    activeFocusOnTab: index === chart.currentIndex
                    Accessible.role: Accessible.StaticText
                    Accessible.name: modelData.accessibleText
                    Accessible.focusable: true
                    onActiveFocusChanged: {
                        if (activeFocus)
                            chart.currentIndex = index;
                    }
                    Keys.onLeftPressed: chart.focusBar(index - 1)
                    Keys.onRightPressed: chart.focusBar(index + 1)
                    Keys.onPressed: event => {
                        if (event.key === Qt.Key_Home || event.key === Qt.Key_End) {
                            chart.focusBar(event.key === Qt.Key_Home ? 0 : chart.entries.length - 1);
                            event.accepted = true;
                        }
                    }
                    ToolTip.text: modelData.accessibleText
                    ToolTip.visible: hover.hovered || activeFocus
                    ToolTip.delay: activeFocus ? 0 : 400

                    HoverHandler { id: hover }
                    Rectangle {
                        anchors.fill: parent
                        radius: 4
                        color: hover.hovered ? Theme.separator : "transparent"
                        border.color: Theme.accent
                        border.width: bar.activeFocus ? 2 : 0
                    }
                    Rectangle {
                        x: (bar.width - bar.barWidth) / 2
                        y: chart.plotBottom - height
                        width: bar.barWidth
                        height: bar.takenHeight
                        radius: Math.min(2, bar.barWidth / 4)
                        color: Theme.accent
                    }
                    Rectangle {
                        x: (bar.width - bar.barWidth) / 2
                        // A hairline apart from the taken part, so the two read as two.
                        y: chart.plotBottom - bar.takenHeight - height - (bar.modelData.taken > 0 ? 1 : 0)
                        width: bar.barWidth
                        height: bar.skippedHeight
                        radius: Math.min(2, bar.barWidth / 4)
                        color: Theme.orange
                    }
                    Label {
                        anchors.horizontalCenter: parent.horizontalCenter
                        y: chart.plotBottom + 4
                        visible: (chart.entries.length - 1 - bar.index) % chart.labelStep === 0
                        text: bar.modelData.label
                        color: bar.isToday ? Theme.text : Theme.secondaryText
                        font.pixelSize: Theme.footnoteSize
                        font.weight: bar.isToday ? Font.DemiBold : Font.Normal
                        Accessible.ignored: true
                    }
                }
            }
        }

        Flow {
            Layout.fillWidth: true
            spacing: 16
            Repeater {
                //: The legend of the chart's breaks taken.
                model: [{ color: Theme.accent, title: qsTr("Taken") }, { color: Theme.orange, title: qsTr("Skipped") }]
                delegate: Row {
                    id: legendEntry
                    required property var modelData
                    spacing: 6
                    Rectangle {
                        anchors.verticalCenter: parent.verticalCenter
                        width: 10
                        height: 10
                        radius: 2
                        color: legendEntry.modelData.color
                    }
                    Label {
                        text: legendEntry.modelData.title
                        color: Theme.secondaryText
                        font.pixelSize: Theme.footnoteSize
                    }
                }
            }
        }
    }

    FormSection {
        objectName: "streakSection"
        visible: pane.showsHistory
        //: A section title: days in a row on which every break was taken.
        title: qsTr("Streak")
        Label {
            objectName: "streakText"
            Layout.fillWidth: true
            wrapMode: Text.WordWrap
            font.pixelSize: 15
            font.weight: Font.DemiBold
            text: pane.historyModel.streak > 0
                  ? qsTr("%n days in a row with every break taken", "", pane.historyModel.streak)
                  : qsTr("No streak yet: take every break of a day to start one.")
        }
        RowLayout {
            objectName: "week"
            Layout.fillWidth: true
            Layout.topMargin: 2
            spacing: 0
            Accessible.role: Accessible.List
            //: The row of seven marks for the days of this week.
            Accessible.name: qsTr("This week")
            Repeater {
                model: pane.historyModel.week
                delegate: ColumnLayout {
                    id: day
                    required property var modelData
                    readonly property int mark: modelData.mark
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    spacing: 4
                    Accessible.role: Accessible.ListItem
                    Accessible.name: modelData.accessibleText
                    SymbolIcon {
                        Layout.alignment: Qt.AlignHCenter
                        size: 22
                        name: pane.markSymbol(day.mark)
                        color: pane.markColor(day.mark)
                    }
                    Label {
                        // Filling the column, so the seven columns share the row evenly.
                        Layout.fillWidth: true
                        horizontalAlignment: Text.AlignHCenter
                        text: day.modelData.label
                        color: Theme.secondaryText
                        font.pixelSize: Theme.footnoteSize
                        Accessible.ignored: true
                    }
                }
            }
        }
        Flow {
            Layout.fillWidth: true
            spacing: 14
            Repeater {
                model: [{ mark: HistoryPaneModel.AllTaken, title: qsTr("Every break taken") },
                        { mark: HistoryPaneModel.Missed, title: qsTr("A break skipped") },
                        { mark: HistoryPaneModel.NoBreaks, title: qsTr("No breaks") }]
                delegate: Row {
                    id: markEntry
                    required property var modelData
                    spacing: 5
                    SymbolIcon {
                        anchors.verticalCenter: parent.verticalCenter
                        size: 13
                        name: pane.markSymbol(markEntry.modelData.mark)
                        color: pane.markColor(markEntry.modelData.mark)
                    }
                    Label {
                        text: markEntry.modelData.title
                        color: Theme.secondaryText
                        font.pixelSize: Theme.footnoteSize
                    }
                }
            }
        }
    }

    FormSection {
        objectName: "keepSection"
        RowLayout {
            Layout.fillWidth: true
            spacing: 12
            Label {
                id: keepLabel
                Layout.fillWidth: true
                //: Followed by a picker of how long the break history is kept ("3 months").
                text: qsTr("Keep history for")
                wrapMode: Text.WordWrap
            }
            ComboBox {
                objectName: "retention"
                Layout.preferredWidth: Math.max(120, implicitWidth)
                Layout.minimumWidth: implicitWidth
                implicitContentWidthPolicy: ComboBox.WidestText
                enabled: pane.historyModel.available
                model: pane.historyModel.retentionOptions
                currentIndex: pane.historyModel.retentionSelection
                displayText: currentIndex < 0 ? "" : currentText
                Accessible.name: keepLabel.text
                onActivated: index => {
                    pane.historyModel.chooseRetention(index);
                    currentIndex = Qt.binding(() => pane.historyModel.retentionSelection);
                }
            }
        }
        Footnote {
            text: qsTr("Older days are removed. The history never leaves this computer.")
        }
        Button {
            objectName: "clearHistory"
            text: qsTr("Clear History…")
            flat: true
            enabled: pane.historyModel.available
            palette.buttonText: Theme.red
            Accessible.name: text
            onClicked: clearConfirmation.open()
        }
    }

    function markSymbol(mark) {
        switch (mark) {
        case HistoryPaneModel.AllTaken: return "checkmark.circle.fill";
        case HistoryPaneModel.Missed: return "minus.circle.fill";
        case HistoryPaneModel.NoBreaks: return "circle";
        default: return "circle.dashed";
        }
    }
    function markColor(mark) {
        switch (mark) {
        case HistoryPaneModel.AllTaken: return Theme.accent;
        case HistoryPaneModel.Missed: return Theme.orange;
        default: return Theme.secondaryText;
        }
    }

    Dialog {
        id: clearConfirmation
        objectName: "clearConfirmation"
        parent: Overlay.overlay
        anchors.centerIn: parent
        width: 400
        modal: true
        focus: true
        padding: 18
        topPadding: 4
        bottomPadding: 4
        title: qsTr("Clear the break history?")
        onAccepted: pane.historyModel.clearHistory()
        // The safe answer has the focus.
        onOpened: cancelButton.forceActiveFocus(Qt.TabFocusReason)

        Overlay.modal: Rectangle {
            color: Qt.rgba(0, 0, 0, Theme.dark ? 0.45 : 0.22)
        }
        background: Rectangle {
            radius: 10
            color: Theme.window
            border.color: Theme.separator
        }
        header: Label {
            text: clearConfirmation.title
            wrapMode: Text.WordWrap
            padding: 18
            bottomPadding: 6
            font.pixelSize: 15
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            wrapMode: Text.WordWrap
            text: qsTr("Every recorded break, pause and Smart Pause hold is removed. This cannot be undone.")
        }
        footer: Item {
            implicitHeight: buttons.implicitHeight + 32
            RowLayout {
                id: buttons
                anchors.fill: parent
                anchors.margins: 16
                spacing: 8
                Item { Layout.fillWidth: true }
                Button {
                    id: cancelButton
                    objectName: "cancelClear"
                    text: qsTr("Cancel")
                    Accessible.name: text
                    onClicked: clearConfirmation.reject()
                }
                Button {
                    objectName: "confirmClear"
                    text: qsTr("Clear History")
                    palette.buttonText: Theme.red
                    Accessible.name: text
                    onClicked: clearConfirmation.accept()
                }
            }
        }
    }
}
