import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velto.Settings

// One focus app: its icon and name, when it holds breaks, and a remove button.
RowLayout {
    id: row

    required property SettingsPaneModel paneModel
    property var app
    signal modeChosen(int mode)
    signal deleted()

    Layout.fillWidth: true
    Layout.topMargin: 2
    Layout.bottomMargin: 2
    spacing: 8

    Image {
        Layout.preferredWidth: 28
        Layout.preferredHeight: 28
        source: row.paneModel.iconSource(row.app.bundleIdentifier || "")
        sourceSize: Qt.size(56, 56)
        fillMode: Image.PreserveAspectFit
        asynchronous: true
        Accessible.ignored: true
    }
    Label {
        Layout.fillWidth: true
        text: row.app.name || ""
        font.pixelSize: Theme.rowSize
        // A long name, or a long picker in another language, takes a second line rather than a cut.
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
    }
    ComboBox {
        id: mode
        objectName: "focusAppMode"
        Layout.preferredWidth: Math.max(190, implicitWidth)
        Layout.minimumWidth: implicitWidth
        implicitContentWidthPolicy: ComboBox.WidestText
        model: row.paneModel.optionLabels(SettingsPaneModel.FocusAppRowMode)
        currentIndex: row.app.mode !== undefined ? row.app.mode : -1
        //: Spoken name of a focus app's picker; %1 is the app's name.
        Accessible.name: qsTr("Pause breaks for %1").arg(row.app.name || "")
        onActivated: index => {
            row.modeChosen(index);
            currentIndex = Qt.binding(() => row.app.mode !== undefined ? row.app.mode : -1);
        }
    }
    ToolButton {
        objectName: "removeFocusApp"
        flat: true
        //: Spoken name of the button that removes a focus app; %1 is the app's name.
        Accessible.name: qsTr("Remove %1").arg(row.app.name || "")
        onClicked: row.deleted()
        contentItem: SymbolIcon { name: "minus.circle.fill"; size: 18; color: Theme.red }
    }
}
