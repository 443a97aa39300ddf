import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// A titled group of rows on a rounded card, like the grouped forms of desktop settings.
ColumnLayout {
    id: section

    property string title
    default property alias rows: body.data

    Layout.fillWidth: true
    spacing: 6

    Label {
        visible: section.title !== ""
        text: section.title
        font.weight: Font.DemiBold
        color: Theme.secondaryText
        leftPadding: 4
        Accessible.role: Accessible.Heading
    }

    // The card is the rows' background: the rows' own layout sizes it, so it never lags behind a row whose
    // height changes while the window is laid out.
    Control {
        Layout.fillWidth: true
        topPadding: 11
        bottomPadding: 11
        leftPadding: 14
        rightPadding: 14
        background: Rectangle {
            radius: 8
            color: Theme.section
            border.color: Theme.separator
        }
        contentItem: ColumnLayout {
            id: body
            spacing: 10
        }
    }
}
