import QtQuick
import QtQuick.Shapes

// A 200 px ring whose accent arc grows clockwise from twelve o'clock. Progress moves once a second, and the arc
// glides linearly over exactly that second, so it never needs a faster timer than its own.
//
// The glide is stepped no more often than the arc's end moves by about a pixel, and at most 20 times a
// second: every frame of a full-screen window costs a copy of the whole window on compositors that hold on to
// the last buffer, so frames in which nothing visible changes are not drawn.
Item {
    id: ring

    property real progress: 0
    property color trackColor
    property color arcColor
    property real shownProgress: 0

    // Where the current glide starts and ends, and when it began.
    property real glideFrom: 0
    property real glideTo: 0
    property double glideStart: 0

    readonly property int glideMilliseconds: 1000

    width: 200
    height: 200

    // The first value shows at once; only changes glide.
    Component.onCompleted: shownProgress = glideFrom = glideTo = progress

    onProgressChanged: {
        glideFrom = shownProgress
        glideTo = progress
        glideStart = Date.now()
        // The arc's end travels this many pixels in the glide: a step per pixel, 20 steps at the most, spread
        // evenly so the last one lands at the end of the second.
        const pixels = Math.abs(glideTo - glideFrom) * Math.PI * width
        glide.interval = glideMilliseconds / Math.min(20, Math.max(1, Math.ceil(pixels)))
        glide.restart()
    }

    Timer {
        id: glide
        repeat: true
        onTriggered: {
            const elapsed = Date.now() - ring.glideStart
            // A step that fires a little early still ends the glide when it is the last one.
            const t = elapsed + interval / 2 >= ring.glideMilliseconds ? 1 : elapsed / ring.glideMilliseconds
            ring.shownProgress = ring.glideFrom + (ring.glideTo - ring.glideFrom) * t
            if (t >= 1)
                stop()
        }
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
