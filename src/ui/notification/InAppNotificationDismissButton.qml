import QtQuick
import QtQuick.Shapes

// The card's close button: a small cross in a 32 × 32 target.
Item {
    id: button

    property color symbolColor
    signal clicked()

    width: 32
    height: 32
    Accessible.role: Accessible.Button
    //: Spoken name of the card's close button (a small cross).
    Accessible.name: qsTr("Dismiss")
    Accessible.onPressAction: button.clicked()

    Shape {
        anchors.centerIn: parent
        width: 10
        height: 10
        opacity: mouse.pressed ? 0.6 : 1
        ShapePath {
            strokeColor: button.symbolColor
            strokeWidth: 1.8
            fillColor: "transparent"
            capStyle: ShapePath.RoundCap
            startX: 0; startY: 0
            PathLine { x: 10; y: 10 }
            PathMove { x: 10; y: 0 }
            PathLine { x: 0; y: 10 }
        }
    }

    MouseArea {
        id: mouse
        anchors.fill: parent
        cursorShape: Qt.PointingHandCursor
        onClicked: button.clicked()
    }
}
