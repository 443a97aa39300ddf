#include "HistoryEvent.h"

#include <QMetaEnum>

namespace velto {

QDateTime HistoryEvent::localTime() const
{
    // The wall clock of that moment, whatever zone this machine is in now.
    return at.toUTC().addSecs(utcOffsetSeconds).toTimeSpec(Qt::UTC);
}

QDate HistoryEvent::localDate() const
{
    return localTime().date();
}

QString rawName(HistoryEventKind kind)
{
    QString name = QString::fromLatin1(QMetaEnum::fromType<HistoryEventKind>().valueToKey(int(kind)));
    if (!name.isEmpty())
        name[0] = name[0].toLower();
    return name;
}

std::optional<HistoryEventKind> historyEventKind(QStringView rawName)
{
    const QMetaEnum meta = QMetaEnum::fromType<HistoryEventKind>();
    for (int i = 0; i < meta.keyCount(); ++i) {
        const auto kind = HistoryEventKind(meta.value(i));
        if (velto::rawName(kind) == rawName)
            return kind;
    }
    return std::nullopt;
}

} // namespace velto
