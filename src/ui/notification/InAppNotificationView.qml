import QtQuick
import QtQuick.Shapes

// The pre-break card: what is coming, a short sentence, a live countdown, and four ways to answer it.
Item {
    id: card

    required property QtObject displayModel
    required property QtObject actions
    property bool dark: false
    property color materialColor: dark ? Qt.rgba(0.16, 0.16, 0.17, 0.94) : Qt.rgba(0.97, 0.97, 0.97, 0.94)
    property string fontFamily
    property url iconSource

    function grey(level) { return Qt.rgba(level, level, level, 1) }
    readonly property color primaryColor: dark ? "white" : "black"
    readonly property color backgroundColor: dark ? "black" : "white"
    readonly property color labelColor: grey(dark ? 0.72 : 0.34)
    readonly property color titleColor: grey(dark ? 0.99 : 0.06)
    readonly property color bodyColor: grey(dark ? 0.86 : 0.18)

    width: 420
    height: 216
    Accessible.role: Accessible.AlertMessage
    Accessible.name: displayModel.title

    Rectangle {
        objectName: "material"
        anchors.fill: parent
        radius: 18
        color: card.materialColor
        border.width: 0.5
        border.color: card.dark ? Qt.rgba(1, 1, 1, 0.18) : Qt.rgba(0, 0, 0, 0.12)
    }

    Column {
        id: content
        x: 22
        y: 18
        width: card.width - 44
        height: card.height - 36
        spacing: 14

        // Header: icon, the two headings, the close button at the far end.
        Item {
            width: content.width
            height: Math.max(32, headings.height)

            InAppNotificationAppIcon {
                id: appIcon
                source: card.iconSource
                dark: card.dark
                primaryColor: card.primaryColor
                symbolColor: card.labelColor
            }

            Column {
                id: headings
                x: appIcon.width + 12
                width: parent.width - x - 12 - closeButton.width
                spacing: 2

                Text {
                    objectName: "upcomingLabel"
                    width: parent.width
                    //: A small heading in capitals above the title of the card that announces the next break.
                    text: qsTr("UPCOMING BREAK")
                    elide: Text.ElideRight
                    color: card.labelColor
                    font.family: card.fontFamily
                    font.pixelSize: 10
                    font.weight: Font.DemiBold
                    font.letterSpacing: 0.8
                }
                Text {
                    objectName: "titleText"
                    width: parent.width
                    text: card.displayModel.title
                    textFormat: Text.PlainText
                    elide: Text.ElideRight
                    color: card.titleColor
                    font.family: card.fontFamily
                    font.pixelSize: 17
                    font.weight: Font.DemiBold
                }
            }

            InAppNotificationDismissButton {
                id: closeButton
                objectName: "dismissButton"
                anchors.right: parent.right
                // Nudged so the cross lines up with the padding, not its tap target.
                anchors.rightMargin: -8
                anchors.top: parent.top
                anchors.topMargin: -6
                symbolColor: card.labelColor
                onClicked: card.actions.dismiss()
            }
        }

        // The sentence and the countdown.
        Item {
            width: content.width
            height: Math.max(body.height, countdownBlock.height)

            Text {
                id: body
                objectName: "bodyText"
                width: parent.width - 20 - countdownBlock.width
                anchors.verticalCenter: parent.verticalCenter
                text: card.displayModel.message
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                maximumLineCount: 3
                elide: Text.ElideRight
                lineHeightMode: Text.FixedHeight
                lineHeight: bodyMetrics.height + 3
                color: card.bodyColor
                font.family: card.fontFamily
                font.pixelSize: 14
                FontMetrics {
                    id: bodyMetrics
                    font: body.font
                }
            }

            Column {
                id: countdownBlock
                objectName: "countdownBlock"
                // Room for the label above the countdown as well, however long it is in the user's language.
                width: Math.max(88, breakInLabel.implicitWidth, countdownText.implicitWidth)
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                spacing: 2
                Accessible.role: Accessible.StaticText
                Accessible.name: card.displayModel.countdownSpokenLabel

                Text {
                    id: breakInLabel
                    objectName: "breakInLabel"
                    anchors.right: parent.right
                    //: A small label in capitals right above a countdown such as 0:42: the time left until the break.
                    text: qsTr("BREAK IN")
                    color: card.labelColor
                    font.family: card.fontFamily
                    font.pixelSize: 10
                    font.weight: Font.DemiBold
                    font.letterSpacing: 0.8
                    Accessible.ignored: true
                }
                TabularDigits {
                    id: countdownText
                    objectName: "countdownText"
                    anchors.right: parent.right
                    text: card.displayModel.countdownText
                    color: card.titleColor
                    font.family: card.fontFamily
                    font.pixelSize: 30
                    font.weight: Font.DemiBold
                }
            }
        }

        // The four answers and the swipe hint.
        Column {
            width: content.width
            spacing: 12

            Row {
                id: toolbar
                objectName: "toolbar"
                spacing: 10

                InAppNotificationToolbarButtonStyle {
                    objectName: "breakNowButton"
                    //: A button of the card: start the break at once ("Break" as a noun: the break, now).
                    text: qsTr("Break now")
                    role: InAppNotificationToolbarButtonStyle.Primary
                    dark: card.dark
                    primaryColor: card.primaryColor
                    backgroundColor: card.backgroundColor
                    fontFamily: card.fontFamily
                    maximumWidth: content.width - 3 * toolbar.spacing - oneMinute.width - threeMinutes.width
                                  - skip.width
                    onClicked: card.actions.breakNow()
                }
                InAppNotificationToolbarButtonStyle {
                    id: oneMinute
                    objectName: "pauseOneMinuteButton"
                    //: A small button of the card: put the break off by one minute. Keep it short.
                    text: qsTr("1 min")
                    dark: card.dark
                    primaryColor: card.primaryColor
                    backgroundColor: card.backgroundColor
                    fontFamily: card.fontFamily
                    onClicked: card.actions.pause(60)
                }
                InAppNotificationToolbarButtonStyle {
                    id: threeMinutes
                    objectName: "pauseThreeMinutesButton"
                    //: A small button of the card: put the break off by three minutes. Keep it short.
                    text: qsTr("3 min")
                    dark: card.dark
                    primaryColor: card.primaryColor
                    backgroundColor: card.backgroundColor
                    fontFamily: card.fontFamily
                    onClicked: card.actions.pause(180)
                }
                InAppNotificationToolbarButtonStyle {
                    id: skip
                    objectName: "skipButton"
                    //: A small button of the card: skip the coming break.
                    text: qsTr("Skip")
                    dark: card.dark
                    primaryColor: card.primaryColor
                    backgroundColor: card.backgroundColor
                    fontFamily: card.fontFamily
                    //: Spoken name of the card's Skip button.
                    Accessible.name: qsTr("Skip break")
                    //: Spoken description of the card's Skip button.
                    Accessible.description: qsTr("Returns to work and skips this break when your skip settings allow.")
                    onClicked: card.actions.skip()
                }
            }

            Row {
                objectName: "swipeHint"
                spacing: 4
                Accessible.role: Accessible.StaticText
                //: A hint at the foot of the card: a sideways swipe on the touchpad sends the card away.
                Accessible.name: qsTr("Swipe to close")

                // Two small chevrons pointing the way the card leaves.
                Shape {
                    width: 9
                    height: 8
                    anchors.verticalCenter: parent.verticalCenter
                    ShapePath {
                        strokeColor: card.labelColor
                        strokeWidth: 1.4
                        fillColor: "transparent"
                        capStyle: ShapePath.RoundCap
                        joinStyle: ShapePath.RoundJoin
                        startX: 4; startY: 0
                        PathLine { x: 0.5; y: 4 }
                        PathLine { x: 4; y: 8 }
                        PathMove { x: 8.5; y: 0 }
                        PathLine { x: 5; y: 4 }
                        PathLine { x: 8.5; y: 8 }
                    }
                }
                Text {
                    text: qsTr("Swipe to close")
                    color: card.labelColor
                    font.family: card.fontFamily
                    font.pixelSize: 11
                    Accessible.ignored: true
                }
            }
        }
    }
}
