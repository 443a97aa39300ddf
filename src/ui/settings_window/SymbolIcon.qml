import QtQuick
import QtQuick.Shapes

// A small line symbol drawn on a 24-unit grid, so it needs no icon theme and scales crisply.
Item {
    id: symbol

    property string name
    property color color: Theme.text
    // Drawn inside a filled symbol (the minus of minus.circle.fill); the window colour by default.
    property color markColor: Theme.window
    property real size: 16

    implicitWidth: size
    implicitHeight: size

    readonly property string circle: "M12 3 A9 9 0 1 0 12.001 3 Z"
    readonly property var shapes: ({
        "gear": { outline: "M19.32 9.97 L21.85 10.28 L21.85 13.72 L19.32 14.03 L18.61 15.75 L20.18 17.75 L17.75 20.18 L15.75 18.61 L14.03 19.32 L13.72 21.85 L10.28 21.85 L9.97 19.32 L8.25 18.61 L6.25 20.18 L3.82 17.75 L5.39 15.75 L4.68 14.03 L2.15 13.72 L2.15 10.28 L4.68 9.97 L5.39 8.25 L3.82 6.25 L6.25 3.82 L8.25 5.39 L9.97 4.68 L10.28 2.15 L13.72 2.15 L14.03 4.68 L15.75 5.39 L17.75 3.82 L20.18 6.25 L18.61 8.25 Z", mark: "M12 8.8 A3.2 3.2 0 1 0 12.001 8.8 Z" },
        "clock": { outline: circle, mark: "M12 7 L12 12 L15.5 14.2" },
        "pause.circle": { outline: circle, mark: "M10 8.5 L10 15.5 M14 8.5 L14 15.5" },
        "bell": { outline: "M6 16.5 L6 11 A6 6 0 0 1 18 11 L18 16.5 L19.5 18 L4.5 18 Z", mark: "M10 20.5 A2 2 0 0 0 14 20.5" },
        "paintbrush": { outline: "M20 3.5 C17 5.5 13.5 9 11.5 11.5 L12.5 12.5 C15 10.5 18.5 7 20.5 4 Z", mark: "M10.5 12.8 C8.2 12.6 6.8 14.2 6.6 16.2 C6.4 18 5.4 19.2 3.8 19.8 C6.5 21 9.8 20.6 11.3 18.8 C12.4 17.4 12.4 14.2 10.5 12.8 Z" },
        "chart.bar": { outline: "M5 20 L5 13 L8 13 L8 20 M10.5 20 L10.5 6 L13.5 6 L13.5 20 M16 20 L16 10 L19 10 L19 20", mark: "M3 20 L21 20" },
        "info.circle": { outline: circle, mark: "M12 11 L12 16.5 M12 7.6 L12 7.7" },
        "checkmark.circle.fill": { outline: circle, mark: "M8 12.4 L10.9 15.2 L16.2 9.3", filled: true },
        "circle": { outline: circle, mark: "" },
        "circle.dashed": { outline: circle, mark: "", dashed: true },
        "checkmark.circle": { outline: circle, mark: "M8 12.4 L10.9 15.2 L16.2 9.3" },
        "exclamationmark.circle": { outline: circle, mark: "M12 7.5 L12 13 M12 16.3 L12 16.4" },
        "plus": { outline: "", mark: "M12 5 L12 19 M5 12 L19 12" },
        "plus.circle": { outline: circle, mark: "M12 8 L12 16 M8 12 L16 12" },
        "minus.circle": { outline: circle, mark: "M8 12 L16 12" },
        "minus.circle.fill": { outline: circle, mark: "M8 12 L16 12", filled: true },
        "circle.fill": { outline: circle, mark: "", filled: true },
        "magnifyingglass": { outline: "M10.5 4 A6.5 6.5 0 1 0 10.501 4 Z", mark: "M15.3 15.3 L20 20" },
        "app.dashed": { outline: "M7 3.5 L17 3.5 A3.5 3.5 0 0 1 20.5 7 L20.5 17 A3.5 3.5 0 0 1 17 20.5 L7 20.5 A3.5 3.5 0 0 1 3.5 17 L3.5 7 A3.5 3.5 0 0 1 7 3.5 Z", mark: "", dashed: true },
        "app.fill": { outline: "M7 3.5 L17 3.5 A3.5 3.5 0 0 1 20.5 7 L20.5 17 A3.5 3.5 0 0 1 17 20.5 L7 20.5 A3.5 3.5 0 0 1 3.5 17 L3.5 7 A3.5 3.5 0 0 1 7 3.5 Z", mark: "", filled: true },
        "arrow.up.right.square": { outline: "M5.5 4 L18.5 4 A1.5 1.5 0 0 1 20 5.5 L20 18.5 A1.5 1.5 0 0 1 18.5 20 L5.5 20 A1.5 1.5 0 0 1 4 18.5 L4 5.5 A1.5 1.5 0 0 1 5.5 4 Z", mark: "M9.5 14.5 L15.5 8.5 M11 8.5 L15.5 8.5 L15.5 13" },
        "envelope": { outline: "M3.5 6 L20.5 6 L20.5 18 L3.5 18 Z", mark: "M3.8 6.4 L12 12.8 L20.2 6.4" },
        "arrow.down.circle.fill": { outline: circle, mark: "M12 7.5 L12 16 M8.5 12.5 L12 16 L15.5 12.5", filled: true },
        "sidebar.left": { outline: "M4.5 5 L19.5 5 A1.5 1.5 0 0 1 21 6.5 L21 17.5 A1.5 1.5 0 0 1 19.5 19 L4.5 19 A1.5 1.5 0 0 1 3 17.5 L3 6.5 A1.5 1.5 0 0 1 4.5 5 Z", mark: "M9 5 L9 19" }
    })
    readonly property var shape: shapes[name] || { outline: "", mark: "" }
    readonly property real lineWidth: Math.max(1.3, size / 13)

    Shape {
        anchors.fill: parent
        antialiasing: true

        ShapePath {
            scale: Qt.size(symbol.size / 24, symbol.size / 24)
            strokeColor: symbol.shape.filled ? "transparent" : symbol.color
            strokeWidth: symbol.lineWidth
            strokeStyle: symbol.shape.dashed ? ShapePath.DashLine : ShapePath.SolidLine
            dashPattern: [2, 1.6]
            fillColor: symbol.shape.filled ? symbol.color : "transparent"
            capStyle: ShapePath.RoundCap
            joinStyle: ShapePath.RoundJoin
            PathSvg { path: symbol.shape.outline }
        }
        ShapePath {
            scale: Qt.size(symbol.size / 24, symbol.size / 24)
            strokeColor: symbol.shape.filled ? symbol.markColor : symbol.color
            strokeWidth: symbol.lineWidth
            fillColor: "transparent"
            capStyle: ShapePath.RoundCap
            joinStyle: ShapePath.RoundJoin
            PathSvg { path: symbol.shape.mark }
        }
    }
}
