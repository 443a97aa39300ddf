import QtQuick
import QtQuick.Shapes

// A flat capsule with a small symbol and a label. When not usable it takes no clicks at all.
Rectangle {
    id: button

    property string text
    property string symbol
    property string fontFamily
    property color foreground
    property color fill
    property bool usable: true

    signal clicked()

    implicitWidth: label.implicitWidth + 40
    implicitHeight: label.implicitHeight + 16
    radius: height / 2
    color: fill

    Behavior on color {
        ColorAnimation { duration: 200; easing.type: Easing.InOutQuad }
    }

    Row {
        id: label
        anchors.centerIn: parent
        spacing: 6

        Shape {
            id: glyph
            width: button.symbol === "forward" ? 14 : 11
            height: 9
            anchors.verticalCenter: parent.verticalCenter

            // Two solid triangles pointing forward.
            ShapePath {
                strokeWidth: -1
                strokeColor: "transparent"
                fillColor: button.symbol === "forward" ? button.foreground : "transparent"
                startX: 0; startY: 0
                PathLine { x: 7; y: 4.5 }
                PathLine { x: 0; y: 9 }
                PathLine { x: 0; y: 0 }
                PathMove { x: 7; y: 0 }
                PathLine { x: 14; y: 4.5 }
                PathLine { x: 7; y: 9 }
                PathLine { x: 7; y: 0 }
            }
            // A tick.
            ShapePath {
                strokeWidth: button.symbol === "checkmark" ? 2 : 0
                strokeColor: button.symbol === "checkmark" ? button.foreground : "transparent"
                fillColor: "transparent"
                capStyle: ShapePath.RoundCap
                joinStyle: ShapePath.RoundJoin
                startX: 1; startY: 4.5
                PathLine { x: 4; y: 8 }
                PathLine { x: 10; y: 1 }
            }
        }

        Text {
            text: button.text
            color: button.foreground
            font.family: button.fontFamily
            font.pixelSize: 13
            font.weight: Font.Medium
            anchors.verticalCenter: parent.verticalCenter
        }
    }

    MouseArea {
        anchors.fill: parent
        enabled: button.usable
        cursorShape: Qt.PointingHandCursor
        onClicked: button.clicked()
    }
}
