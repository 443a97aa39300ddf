#include "JsonRecord.h"

#include <cmath>

namespace velto {

std::optional<qint64> jsonInteger(const QJsonValue& value)
{
    if (!value.isDouble())
        return std::nullopt;
    const double number = value.toDouble();
    // 2^63 itself does not fit; everything below it with no fraction does.
    constexpr double limit = 9223372036854775808.0;
    if (!std::isfinite(number) || std::trunc(number) != number || number >= limit || number < -limit)
        return std::nullopt;
    return static_cast<qint64>(number);
}

QJsonValue JsonReader::member(QStringView key)
{
    const QJsonValue value = m_object.value(key);
    if (value.isUndefined())
        fail();
    return value;
}

bool JsonReader::boolean(QStringView key)
{
    const QJsonValue value = member(key);
    if (!value.isBool())
        fail();
    return value.toBool();
}

double JsonReader::number(QStringView key)
{
    const QJsonValue value = member(key);
    if (!value.isDouble())
        fail();
    return value.toDouble();
}

qint64 JsonReader::integer(QStringView key)
{
    const std::optional<qint64> value = jsonInteger(member(key));
    if (!value)
        fail();
    return value.value_or(0);
}

QString JsonReader::string(QStringView key)
{
    const QJsonValue value = member(key);
    if (!value.isString())
        fail();
    return value.toString();
}

QStringList JsonReader::stringList(QStringView key)
{
    QStringList list;
    const QJsonArray items = array(key);
    list.reserve(items.size());
    for (const QJsonValue& item : items) {
        if (!item.isString()) {
            fail();
            return {};
        }
        list.append(item.toString());
    }
    return list;
}

QJsonObject JsonReader::object(QStringView key)
{
    const QJsonValue value = member(key);
    if (!value.isObject())
        fail();
    return value.toObject();
}

QJsonArray JsonReader::array(QStringView key)
{
    const QJsonValue value = member(key);
    if (!value.isArray())
        fail();
    return value.toArray();
}

std::optional<QString> JsonReader::optionalString(QStringView key)
{
    const QJsonValue value = m_object.value(key);
    if (value.isUndefined() || value.isNull())
        return std::nullopt;
    if (!value.isString()) {
        fail();
        return std::nullopt;
    }
    return value.toString();
}

std::optional<qint64> JsonReader::optionalInteger(QStringView key)
{
    const QJsonValue value = m_object.value(key);
    if (value.isUndefined() || value.isNull())
        return std::nullopt;
    const std::optional<qint64> integer = jsonInteger(value);
    if (!integer)
        fail();
    return integer;
}

} // namespace velto
