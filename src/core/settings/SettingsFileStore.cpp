#include "SettingsFileStore.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace velto {
namespace {

QSettings::Format typedIniFormat()
{
    static const QSettings::Format format =
        QSettings::registerFormat(u"ini"_s, &SettingsFileStore::readTypedIni, &SettingsFileStore::writeTypedIni);
    return format;
}

// QJsonDocument only holds arrays and objects, so a single value travels inside a one-element array.
QByteArray encodeScalar(const QJsonValue& value)
{
    const QByteArray wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return wrapped.mid(1, wrapped.size() - 2);
}

QByteArray encodeValue(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? "true" : "false";
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return QByteArray::number(value.toLongLong());
    case QMetaType::Float:
    case QMetaType::Double:
        return encodeScalar(QJsonValue(value.toDouble()));
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return QJsonDocument(QJsonArray::fromVariantList(value.toList())).toJson(QJsonDocument::Compact);
    case QMetaType::QDateTime:
        return encodeScalar(QJsonValue(value.toDateTime().toString(Qt::ISODateWithMs)));
    case QMetaType::QByteArray: {
        // Data holds JSON records; keep them on one line and readable. Only objects, as arrays read back as lists.
        const QByteArray data = value.toByteArray();
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(data, &error);
        if (error.error == QJsonParseError::NoError && document.isObject())
            return data.contains('\n') ? document.toJson(QJsonDocument::Compact) : data.trimmed();
        return encodeScalar(QJsonValue(QString::fromUtf8(data)));
    }
    default:
        return encodeScalar(QJsonValue(value.toString()));
    }
}

QVariant decodeValue(const QByteArray& text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson('[' + text + ']', &error);
    if (error.error != QJsonParseError::NoError || document.array().size() != 1)
        return QString::fromUtf8(text);
    const QJsonValue value = document.array().first();
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool();
    case QJsonValue::Double:
        return value.toDouble();
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Array:
        return value.toArray().toVariantList();
    case QJsonValue::Object:
        return text;
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        break;
    }
    return {};
}

} // namespace

bool SettingsFileStore::readTypedIni(QIODevice& device, QSettings::SettingsMap& map)
{
    QString section;
    while (!device.atEnd()) {
        const QByteArray line = device.readLine().trimmed();
        if (line.isEmpty() || line.startsWith('#') || line.startsWith(';'))
            continue;
        if (line.startsWith('[') && line.endsWith(']')) {
            section = QString::fromUtf8(line.mid(1, line.size() - 2)).trimmed();
            if (section.compare(u"General"_s, Qt::CaseInsensitive) == 0)
                section.clear();
            continue;
        }
        const qsizetype equals = line.indexOf('=');
        if (equals <= 0)
            continue;
        const QString key = QString::fromUtf8(line.left(equals).trimmed());
        const QVariant value = decodeValue(line.mid(equals + 1).trimmed());
        if (!key.isEmpty() && value.isValid())
            map.insert(section.isEmpty() ? key : section + u'/' + key, value);
    }
    // A damaged file still yields whatever lines were readable.
    return true;
}

bool SettingsFileStore::writeTypedIni(QIODevice& device, const QSettings::SettingsMap& map)
{
    QByteArray text = "# Velto settings: one JSON value per key.\n";
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        QByteArray key = it.key().toUtf8();
        // Keys are Velto's own names; refuse anything that would break the line format on reading.
        if (key.contains('=') || key.contains('\n') || key.contains('\r'))
            continue;
        text += key + '=' + encodeValue(it.value()) + '\n';
    }
    return device.write(text) == text.size();
}

SettingsFileStore::SettingsFileStore(const QString& filePath)
    : m_settings(std::make_unique<QSettings>(filePath, typedIniFormat()))
{}

SettingsFileStore::~SettingsFileStore() = default;

QString SettingsFileStore::defaultFilePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/velto/velto.ini"_s;
}

QVariant SettingsFileStore::read(const QString& key) const
{
    return m_settings->value(key);
}

void SettingsFileStore::write(const QString& key, const QVariant& value)
{
    m_settings->setValue(key, value);
}

void SettingsFileStore::remove(const QString& key)
{
    m_settings->remove(key);
}

void SettingsFileStore::sync()
{
    m_settings->sync();
}

QString SettingsFileStore::filePath() const
{
    return m_settings->fileName();
}

} // namespace velto
