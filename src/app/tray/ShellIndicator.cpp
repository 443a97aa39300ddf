#include "ShellIndicator.h"

#include "TrayIconPainter.h"

#include <QBuffer>
#include <QDBusMetaType>
#include <QMetaEnum>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace velto {

ShellIndicator::ShellIndicator(QObject* parent)
    : QObject(parent)
{
    qDBusRegisterMetaType<QList<QVariantMap>>();
}

ShellIndicator::~ShellIndicator()
{
    if (m_bus.isConnected())
        m_bus.unregisterObject(QString(objectPath));
}

bool ShellIndicator::registerOn(QDBusConnection bus)
{
    if (!bus.isConnected() ||
        !bus.registerObject(QString(objectPath), this,
                            QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportScriptableSignals))
        return false;
    m_bus = bus;
    return true;
}

void ShellIndicator::update(const TrayIconFace& face, const TrayAccessibleTexts& texts)
{
    if (m_face == face && m_texts.label == texts.label && m_texts.value == texts.value)
        return;
    m_face = face;
    m_texts = texts;
    if (m_asked)
        Q_EMIT changed();
}

QByteArray ShellIndicator::icon(int size)
{
    m_asked = true;
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    TrayIconPainter::paint(m_face.value_or(TrayIconFace{}), std::clamp(size, 16, 96)).save(&buffer, "PNG");
    return png;
}

QString ShellIndicator::texts(QString& value)
{
    m_asked = true;
    value = m_texts.value;
    return m_texts.label.isEmpty() ? u"Velto"_s : m_texts.label;
}

QList<QVariantMap> ShellIndicator::menu()
{
    m_asked = true;
    QList<QVariantMap> items;
    if (!menuItems)
        return items;
    const QMetaEnum actions = QMetaEnum::fromType<MenuAction>();
    for (const StatusMenuItem& item : menuItems()) {
        items.append({
            {u"title"_s, item.title},
            {u"action"_s,
             item.action == MenuAction::None ? QString() : QString::fromLatin1(actions.valueToKey(int(item.action)))},
            {u"enabled"_s, item.isEnabled},
            {u"separator"_s, item.isSeparator},
        });
    }
    return items;
}

void ShellIndicator::activate(const QString& action)
{
    bool known = false;
    const int value = QMetaEnum::fromType<MenuAction>().keyToValue(action.toLatin1().constData(), &known);
    if (known && MenuAction(value) != MenuAction::None && onAction)
        onAction(MenuAction(value));
}

} // namespace velto
