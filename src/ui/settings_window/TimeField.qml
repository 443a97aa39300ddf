import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// An hour and minute picker: two spin boxes, 24-hour, reporting every change.
RowLayout {
    id: field

    property string text
    property int hour
    property int minute
    signal edited(int hour, int minute)

    spacing: 4

    Label { text: field.text }
    SpinBox {
        id: hours
        objectName: "hour"
        from: 0
        to: 23
        editable: true
        value: field.hour
        Layout.preferredWidth: 66
        textFromValue: (value, locale) => String(value).padStart(2, "0")
        //: Spoken name of the hour box of a time; %1 is the time's label, Start or End.
        Accessible.name: qsTr("%1 hour").arg(field.text)
        onValueModified: {
            field.edited(value, minutes.value);
            value = Qt.binding(() => field.hour);
        }
    }
    Label { text: ":" }
    SpinBox {
        id: minutes
        objectName: "minute"
        from: 0
        to: 59
        editable: true
        value: field.minute
        Layout.preferredWidth: 66
        textFromValue: (value, locale) => String(value).padStart(2, "0")
        //: Spoken name of the minute box of a time; %1 is the time's label, Start or End.
        Accessible.name: qsTr("%1 minute").arg(field.text)
        onValueModified: {
            field.edited(hours.value, value);
            value = Qt.binding(() => field.minute);
        }
    }
}
