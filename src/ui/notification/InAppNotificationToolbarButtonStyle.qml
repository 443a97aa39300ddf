import QtQuick

// A button of the card's toolbar in one of two roles. Primary: filled with the primary colour, label in the
// background colour. Secondary: a thin border and a label in the primary colour. Pressing dims and shrinks
// the whole button.
Item {
    id: button

    enum Role { Primary, Secondary }

    property string text
    property int role: InAppNotificationToolbarButtonStyle.Secondary
    readonly property bool primary: role === InAppNotificationToolbarButtonStyle.Primary
    property bool dark: false
    property color primaryColor
    property color backgroundColor
    property string fontFamily
    // Room the row can give; a primary label shrinks to 85 % before it is cut.
    property real maximumWidth: 10000
    readonly property bool isHovering: mouse.containsMouse
    readonly property bool pressed: mouse.pressed

    signal clicked()

    readonly property real horizontalPadding: primary ? 14 : 11
    // The label's own padding makes the button's size.
    implicitWidth: Math.min(label.implicitWidth, maximumWidth)
    implicitHeight: label.implicitHeight
    width: implicitWidth
    height: implicitHeight

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: button.clicked()

    opacity: pressed ? 0.72 : 1
    scale: pressed ? 0.98 : 1
    Behavior on opacity { NumberAnimation { duration: 120; easing.type: Easing.OutQuad } }
    Behavior on scale { NumberAnimation { duration: 120; easing.type: Easing.OutQuad } }

    Rectangle {
        objectName: "fill"
        anchors.fill: parent
        radius: 8
        color: button.primary ? button.primaryColor : "transparent"
        opacity: button.primary && button.isHovering && !button.pressed ? 0.88 : 1
        border.width: button.primary ? 0 : 1
        border.color: Qt.rgba(button.primaryColor.r, button.primaryColor.g, button.primaryColor.b,
                              button.dark ? 0.40 : 0.32)
        Behavior on opacity { NumberAnimation { duration: 120; easing.type: Easing.OutQuad } }
    }

    Text {
        id: label
        objectName: "label"
        anchors.fill: parent
        leftPadding: button.horizontalPadding
        rightPadding: button.horizontalPadding
        topPadding: 8
        bottomPadding: 8
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        text: button.text
        textFormat: Text.PlainText
        maximumLineCount: 1
        elide: Text.ElideRight
        fontSizeMode: button.primary ? Text.HorizontalFit : Text.FixedSize
        minimumPixelSize: Math.floor(font.pixelSize * 0.85)
        color: button.primary ? button.backgroundColor : button.primaryColor
        font.family: button.fontFamily
        font.pixelSize: button.primary ? 14 : 13
        font.weight: button.primary ? Font.DemiBold : Font.Medium
        Accessible.ignored: true
    }

    MouseArea {
        id: mouse
        anchors.fill: parent
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: button.clicked()
    }
}
