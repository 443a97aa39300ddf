import QtQuick

// Velto's icon at 32 × 32 in a rounded frame, or a tinted tile with an application glyph when there is none.
Item {
    id: icon

    property url source
    property bool dark: false
    property color primaryColor
    property color symbolColor

    width: 32
    height: 32
    Accessible.ignored: true

    Rectangle {
        objectName: "fallbackTile"
        anchors.fill: parent
        visible: icon.source.toString() === ""
        radius: 8
        color: Qt.rgba(icon.primaryColor.r, icon.primaryColor.g, icon.primaryColor.b, icon.dark ? 0.14 : 0.08)

        // A filled application tile, the generic sign for "an app".
        Rectangle {
            anchors.centerIn: parent
            width: 15
            height: 15
            radius: 4
            color: icon.symbolColor
        }
    }

    Image {
        objectName: "appIcon"
        anchors.fill: parent
        visible: icon.source.toString() !== ""
        source: icon.source
        sourceSize: Qt.size(64, 64)
        smooth: true
        mipmap: true
    }

    Rectangle {
        anchors.fill: parent
        visible: icon.source.toString() !== ""
        radius: 8
        color: "transparent"
        border.width: 0.5
        border.color: icon.dark ? Qt.rgba(1, 1, 1, 0.22) : Qt.rgba(0, 0, 0, 0.18)
    }
}
