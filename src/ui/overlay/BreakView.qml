import QtQuick
import QtQuick.Shapes

// The break screen: background, caption, ring with the time left, one message and the Skip / End Break row.
Item {
    id: view

    required property QtObject viewModel
    readonly property string fontFamily: viewModel.fontFamily
    readonly property color captionColor: viewModel.isDarkBackground ? Qt.rgba(1, 1, 1, 0.8)
                                                                    : Qt.rgba(0.18, 0.18, 0.18, 0.6)

    function withAlpha(color, alpha) {
        return Qt.rgba(color.r, color.g, color.b, alpha)
    }

    // Background: the theme or paper gradient, a solid colour, or a picture filling the screen.
    Shape {
        id: backgroundGradient
        objectName: "backgroundGradient"
        anchors.fill: parent
        visible: !view.viewModel.showsImage && !view.viewModel.showsSolidColor

        ShapePath {
            strokeWidth: -1
            strokeColor: "transparent"
            fillGradient: LinearGradient {
                id: diagonal
                x1: 0
                y1: 0
                x2: view.width
                y2: view.height
            }
            PathLine { x: view.width; y: 0 }
            PathLine { x: view.width; y: view.height }
            PathLine { x: 0; y: view.height }
            PathLine { x: 0; y: 0 }
        }
    }

    Component {
        id: stopComponent
        GradientStop {}
    }

    function rebuildGradient() {
        const colors = viewModel.gradientStops
        const stops = []
        for (let i = 0; i < colors.length; ++i) {
            const position = colors.length > 1 ? i / (colors.length - 1) : 0
            stops.push(stopComponent.createObject(diagonal, { position: position, color: colors[i] }))
        }
        diagonal.stops = stops
    }

    Connections {
        target: view.viewModel
        function onAppearanceChanged() { view.rebuildGradient() }
    }
    Component.onCompleted: rebuildGradient()

    Rectangle {
        objectName: "backgroundSolid"
        anchors.fill: parent
        visible: view.viewModel.showsSolidColor
        color: view.viewModel.solidColor
    }

    Image {
        objectName: "backgroundImage"
        anchors.fill: parent
        visible: view.viewModel.showsImage
        source: view.viewModel.showsImage ? view.viewModel.imageSource : ""
        fillMode: Image.PreserveAspectCrop
        cache: false
        smooth: true
    }

    Rectangle {
        objectName: "dimLayer"
        anchors.fill: parent
        color: "black"
        opacity: view.viewModel.dimOpacity
        visible: opacity > 0
    }

    // Content column: flexible space, header, message, flexible space, controls, 80 px; 32 px between them.
    Item {
        id: content
        anchors.fill: parent

        readonly property real spacing: 32
        readonly property real freeHeight: height - header.height - message.height - controls.height - 80
                                           - 5 * spacing

        Column {
            id: header
            spacing: 24
            anchors.horizontalCenter: parent.horizontalCenter
            y: Math.max(0, content.freeHeight / 2) + content.spacing

            Text {
                objectName: "captionText"
                anchors.horizontalCenter: parent.horizontalCenter
                text: view.viewModel.caption
                color: view.captionColor
                font.family: view.fontFamily
                font.pixelSize: 13
                font.weight: Font.Medium
                font.letterSpacing: 0.8
                font.capitalization: Font.AllUppercase
            }

            RingProgress {
                objectName: "ring"
                anchors.horizontalCenter: parent.horizontalCenter
                progress: view.viewModel.progress
                trackColor: view.viewModel.isDarkBackground ? Qt.rgba(1, 1, 1, 0.25) : Qt.rgba(0.18, 0.18, 0.18, 0.08)
                arcColor: view.viewModel.accentColor

                TabularDigits {
                    objectName: "timeText"
                    anchors.centerIn: parent
                    text: view.viewModel.timeText
                    color: view.viewModel.inkColor
                    font.family: view.fontFamily
                    font.pixelSize: 64
                    font.bold: true
                    font.letterSpacing: -1.5
                }
            }
        }

        Text {
            id: message
            objectName: "messageText"
            y: header.y + header.height + content.spacing
            width: parent.width
            leftPadding: 32
            rightPadding: 32
            topPadding: 16
            text: view.viewModel.message
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            maximumLineCount: 3
            elide: Text.ElideRight
            color: view.viewModel.inkColor
            font.family: view.fontFamily
            font.pixelSize: 48
            font.bold: true
            font.letterSpacing: -1.2
        }

        Row {
            id: controls
            objectName: "controls"
            spacing: 20
            anchors.horizontalCenter: parent.horizontalCenter
            y: parent.height - 80 - content.spacing - height

            CapsuleButton {
                objectName: "skipButton"
                visible: view.viewModel.skipPresent
                usable: view.viewModel.skipUsable
                //: A button on the break screen: skip the rest of this break and go back to work.
                text: qsTr("Skip")
                symbol: "forward"
                fontFamily: view.fontFamily
                foreground: usable ? view.viewModel.controlColor : view.withAlpha(view.viewModel.controlColor, 0.4)
                fill: view.withAlpha(view.viewModel.controlColor, usable ? 0.14 : 0.06)
                onClicked: view.viewModel.skip()
            }

            CapsuleButton {
                objectName: "endBreakButton"
                visible: view.viewModel.endBreakPresent
                //: A button on the break screen, shown in the break's second half: end the break now ("Break" is a noun).
                text: qsTr("End Break")
                symbol: "checkmark"
                fontFamily: view.fontFamily
                foreground: view.viewModel.accentColor
                fill: view.withAlpha(view.viewModel.accentColor, 0.15)
                onClicked: view.viewModel.endBreak()
            }
        }
    }
}
