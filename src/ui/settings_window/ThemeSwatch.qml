import QtQuick

// A small left-to-right sample of a gradient theme.
Rectangle {
    id: swatch

    property var colors: []

    implicitWidth: 24
    implicitHeight: 16
    radius: 4
    gradient: Gradient {
        orientation: Gradient.Horizontal
        stops: swatch.colors.map((color, i) => stopComponent.createObject(swatch, {
            position: swatch.colors.length > 1 ? i / (swatch.colors.length - 1) : 0,
            color: color
        }))
    }

    Component {
        id: stopComponent
        GradientStop {}
    }
}
