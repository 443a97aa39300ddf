import QtQuick
import QtQuick.Controls

// A bordered button that fills with the accent colour while highlighted, so a chosen option stands out in
// both palettes.
Button {
    id: button

    leftPadding: 10
    rightPadding: 10
    topPadding: 5
    bottomPadding: 5
    opacity: enabled ? 1 : 0.45
    // A label cut short by a narrow row is shown whole on hover.
    ToolTip.text: text
    ToolTip.visible: hovered && contentItem.truncated
    ToolTip.delay: 600

    contentItem: Label {
        text: button.text
        font: button.font
        color: button.highlighted ? Theme.accentText : Theme.text
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
    background: Rectangle {
        implicitHeight: 26
        radius: 6
        color: button.highlighted ? (button.down ? Qt.darker(Theme.accent, 1.1) : Theme.accent)
                                  : (button.down ? Theme.separator : Theme.palette.button)
        border.color: button.highlighted ? Theme.accent : Qt.rgba(Theme.text.r, Theme.text.g, Theme.text.b, 0.2)
        border.width: button.visualFocus ? 2 : 1
    }
}
