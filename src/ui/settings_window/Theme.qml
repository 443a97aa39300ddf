pragma Singleton
import QtQuick

// Colours of the settings window, taken from the desktop palette so the window follows light and dark.
QtObject {
    readonly property SystemPalette palette: SystemPalette { colorGroup: SystemPalette.Active }
    readonly property bool dark: palette.window.hslLightness < 0.5
    readonly property color window: palette.window
    readonly property color text: palette.windowText
    readonly property color secondaryText: Qt.rgba(text.r, text.g, text.b, 0.62)
    readonly property color sidebar: dark ? Qt.darker(window, 1.18) : Qt.darker(window, 1.035)
    readonly property color section: dark ? Qt.lighter(window, 1.22) : Qt.lighter(window, 1.06)
    readonly property color separator: Qt.rgba(text.r, text.g, text.b, dark ? 0.16 : 0.11)
    readonly property color accent: palette.highlight
    readonly property color accentText: palette.highlightedText
    readonly property color red: dark ? "#ff6961" : "#d70015"
    // A skipped break: set apart from the accent without the alarm of red.
    readonly property color orange: dark ? "#ffa94d" : "#d9730d"
    readonly property int captionSize: 12
    readonly property int rowSize: 14
    readonly property int footnoteSize: 11
}
