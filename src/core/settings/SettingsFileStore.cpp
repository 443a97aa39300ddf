#include "SettingsFileStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace velto {
namespace {

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

QVariant decodeValue(const QByteArray& raw)
{
    // A hand edit can leave a byte that is no UTF-8, which the JSON reader refuses outright; as U+FFFD it costs
    // one character instead of the whole value.
    const QByteArray text = QString::fromUtf8(raw).toUtf8();
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

bool SettingsFileStore::readTypedIni(QIODevice& device, QVariantMap& map)
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

bool SettingsFileStore::writeTypedIni(QIODevice& device, const QVariantMap& map)
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
    : m_filePath(filePath)
{
    QFile file(filePath);
    if (file.open(QIODevice::ReadOnly))
        readTypedIni(file, m_values);
    m_deferredSync.setSingleShot(true);
    m_deferredSync.setInterval(0);
    m_deferredSync.callOnTimeout([this] { sync(); });
}

SettingsFileStore::~SettingsFileStore()
{
    sync();
}

QString SettingsFileStore::defaultFilePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/velto/velto.ini"_s;
}

QVariant SettingsFileStore::read(const QString& key) const
{
    return m_values.value(key);
}

void SettingsFileStore::write(const QString& key, const QVariant& value)
{
    m_values.insert(key, value);
    changed();
}

void SettingsFileStore::remove(const QString& key)
{
    if (m_values.remove(key) > 0)
        changed();
}

void SettingsFileStore::changed()
{
    // The settings write nine keys at a time; they reach the file together.
    m_pending = true;
    if (!m_deferredSync.isActive())
        m_deferredSync.start();
}

bool SettingsFileStore::sync()
{
    m_deferredSync.stop();
    if (!m_pending)
        return true;
    const std::optional<QString> problem = writeFile();
    m_writeState.setWriteFailed(problem.has_value());
    if (!problem) {
        m_pending = false;
        m_reportedProblems.clear();
        return true;
    }
    // Every save tries again; the reason is told once, until a save succeeds or the reason changes.
    if (!m_reportedProblems.contains(*problem)) {
        m_reportedProblems.insert(*problem);
        qWarning("velto: settings cannot be saved to %s: %s; changes last until Velto quits",
                 qPrintable(QDir::toNativeSeparators(m_filePath)), qPrintable(*problem));
    }
    return false;
}

std::optional<QString> SettingsFileStore::writeFile() const
{
    const QString folder = QFileInfo(m_filePath).absolutePath();
    if (!QDir().mkpath(folder))
        return u"the folder %1 cannot be created"_s.arg(QDir::toNativeSeparators(folder));
    QSaveFile file(m_filePath);
    if (!file.open(QIODevice::WriteOnly) || !writeTypedIni(file, m_values) || !file.commit())
        return file.errorString();
    return std::nullopt;
}

} // namespace velto
