import QtQuick

// A countdown's text with every digit in a cell as wide as the widest digit, so "11:11" and "00:00" take the
// same room and the numbers stand still while they count. (Qt 6.4 offers no tabular-figures font feature.)
Row {
    id: digits

    property string text
    property font font
    property color color

    readonly property real digitWidth: {
        let widest = 0;
        for (let d = 0; d < 10; ++d)
            widest = Math.max(widest, metrics.advanceWidth(String(d)));
        return Math.ceil(widest);
    }

    FontMetrics {
        id: metrics
        font: digits.font
    }

    Repeater {
        model: digits.text.split("")

        Text {
            required property string modelData
            width: modelData >= "0" && modelData <= "9" ? digits.digitWidth : implicitWidth
            horizontalAlignment: Text.AlignHCenter
            text: modelData
            color: digits.color
            font: digits.font
        }
    }
}
