#include "ControlTarget.h"

#include <QDBusArgument>
#include <QDBusMetaType>

using namespace Qt::Literals::StringLiterals;

namespace velto {

QVariantMap ControlStatus::toVariantMap() const
{
    return {
        {u"statusLine"_s, statusLine},
        {u"timeText"_s, timeText},
        {u"state"_s, state},
        {u"pauseReason"_s, pauseReason},
        {u"breaksToday"_s, breaksToday},
        {u"enabled"_s, enabled},
        {u"detection"_s, detection},
        {u"localStatusLine"_s, localStatusLine},
    };
}

ControlStatus ControlStatus::fromVariantMap(const QVariantMap& map)
{
    const auto text = [&map](const QString& key) {
        const QVariant value = map.value(key);
        return value.typeId() == QMetaType::QString ? value.toString() : QString();
    };
    ControlStatus status;
    status.statusLine = text(u"statusLine"_s);
    status.localStatusLine = text(u"localStatusLine"_s);
    status.timeText = text(u"timeText"_s);
    status.state = text(u"state"_s);
    status.pauseReason = text(u"pauseReason"_s);
    bool ok = false;
    const int count = map.value(u"breaksToday"_s).toInt(&ok);
    status.breaksToday = ok ? count : 0;
    const QVariant enabled = map.value(u"enabled"_s);
    status.enabled = enabled.typeId() == QMetaType::Bool && enabled.toBool();
    // A map inside the bus's a{sv} arrives still marshalled.
    const QVariant detection = map.value(u"detection"_s);
    if (detection.canConvert<QDBusArgument>())
        status.detection = qdbus_cast<QVariantMap>(detection.value<QDBusArgument>());
    else if (detection.typeId() == QMetaType::QVariantMap)
        status.detection = detection.toMap();
    return status;
}

} // namespace velto
