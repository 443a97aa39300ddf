#pragma once

#include "SettingsEnums.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <optional>

namespace velto {

// Reads the members of one JSON object for a record decoder. A record decodes all or nothing: the first
// missing member or wrong type marks the reader failed, and the decoder then yields no record.
// Members the record does not know are ignored, so a newer layout still reads.
class JsonReader final {
public:
    explicit JsonReader(const QJsonObject& object)
        : m_object(object)
    {}

    [[nodiscard]] bool ok() const { return m_ok; }
    void fail() { m_ok = false; }

    bool boolean(QStringView key);
    double number(QStringView key);
    // A number with a whole value that fits in 64 bits.
    qint64 integer(QStringView key);
    QString string(QStringView key);
    QStringList stringList(QStringView key);
    QJsonObject object(QStringView key);
    QJsonArray array(QStringView key);
    // Absent or null gives nothing; any other non-string fails the record.
    std::optional<QString> optionalString(QStringView key);
    // Absent or null gives nothing; any other non-integer fails the record.
    std::optional<qint64> optionalInteger(QStringView key);

    template <typename E>
    E enumeration(QStringView key, E fallback)
    {
        const QString raw = string(key);
        if (!m_ok)
            return fallback;
        const std::optional<E> value = fromRawValue<E>(raw);
        if (!value) {
            fail();
            return fallback;
        }
        return *value;
    }

private:
    QJsonValue member(QStringView key);

    QJsonObject m_object;
    bool m_ok = true;
};

[[nodiscard]] std::optional<qint64> jsonInteger(const QJsonValue& value);

// The stored form of a record: its JSON object as compact text.
template <typename Record>
[[nodiscard]] QByteArray encodeRecord(const Record& record)
{
    return QJsonDocument(record.toJson()).toJson(QJsonDocument::Compact);
}

template <typename Record>
[[nodiscard]] std::optional<Record> decodeRecord(const QByteArray& data)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(data, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return std::nullopt;
    return Record::fromJson(document.object());
}

} // namespace velto
