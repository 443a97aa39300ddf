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

    Rectangle {
        Layout.fillWidth: true
        implicitHeight: body.implicitHeight + 22
        radius: 8
        color: Theme.section
        border.color: Theme.separator

        ColumnLayout {
            id: body
            anchors.fill: parent
            anchors.leftMargin: 14
            anchors.rightMargin: 14
            anchors.topMargin: 11
            anchors.bottomMargin: 11
            spacing: 10
        }
    }
}
