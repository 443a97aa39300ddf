import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// An hour and minute picker: two spin boxes reporting every change. The hour reads as the user's locale writes
// it, "14" or "2 PM"; the value is the hour of the day either way.
RowLayout {
    id: field

    property string text
    property int hour
    property int minute
    signal edited(int hour, int minute)

    // Where the locale's times carry AM/PM, its clock has twelve hours.
    readonly property bool twelveHours: /a/i.test(Qt.locale().timeFormat(Locale.ShortFormat))

    spacing: 4

    Label { text: field.text }
    SpinBox {
        id: hours
        objectName: "hour"
        from: 0
        to: 23
        editable: true
        value: field.hour
        Layout.preferredWidth: field.twelveHours ? 96 : 66
        textFromValue: (value, locale) => field.twelveHours
                       ? (value % 12 || 12) + " " + (value < 12 ? locale.amText : locale.pmText)
                       : String(value).padStart(2, "0")
        valueFromText: (text, locale) => {
            const number = parseInt(text, 10);
            if (isNaN(number))
                return value;
            if (!field.twelveHours)
                return number;
            const afternoon = text.toLowerCase().includes(locale.pmText.toLowerCase());
            return number % 12 + (afternoon ? 12 : 0);
        }
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
