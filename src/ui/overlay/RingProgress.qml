import QtQuick
import QtQuick.Shapes

// A 200 px ring whose accent arc grows clockwise from twelve o'clock. Progress moves once a second, so the
// arc glides over exactly that second and never needs a faster timer.
Item {
    id: ring

    property real progress: 0
    property color trackColor
    property color arcColor
    property real shownProgress: progress

    width: 200
    height: 200

    Behavior on shownProgress {
        NumberAnimation { duration: 1000; easing.type: Easing.Linear }
    }

    Shape {
        anchors.fill: parent
        ShapePath {
            strokeColor: ring.trackColor
            strokeWidth: 6
            fillColor: "transparent"
            capStyle: ShapePath.FlatCap
            PathAngleArc { centerX: 100; centerY: 100; radiusX: 100; radiusY: 100; startAngle: 0; sweepAngle: 360 }
        }
    }

    Shape {
        objectName: "progressArc"
        anchors.fill: parent
        visible: ring.shownProgress > 0
        ShapePath {
            strokeColor: ring.arcColor
            strokeWidth: 6
            fillColor: "transparent"
            capStyle: ShapePath.RoundCap
            PathAngleArc {
                centerX: 100
                centerY: 100
                radiusX: 100
                radiusY: 100
                startAngle: -90
                sweepAngle: 360 * ring.shownProgress
            }
        }
    }
}
