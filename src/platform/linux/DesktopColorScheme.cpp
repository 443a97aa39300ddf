#include "DesktopColorScheme.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {
const QString portal = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString settingsInterface = u"org.freedesktop.portal.Settings"_s;
const QString appearance = u"org.freedesktop.appearance"_s;
const QString colorScheme = u"color-scheme"_s;

// The portal wraps the value in a variant, and older ones wrap it twice.
uint unwrap(QVariant value)
{
    while (value.canConvert<QDBusVariant>() && value.userType() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.toUInt();
}

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}
} // namespace

DesktopColorScheme::DesktopColorScheme(QDBusConnection bus, QObject* parent)
    : QObject(parent)
    , m_bus(std::move(bus))
{}

void DesktopColorScheme::start()
{
    if (!m_bus.isConnected())
        return;
    m_bus.connect(portal, portalPath, settingsInterface, u"SettingChanged"_s, this,
                  SLOT(settingChanged(QString, QString, QDBusVariant)));
    auto read = QDBusMessage::createMethodCall(portal, portalPath, settingsInterface, u"Read"_s);
    read << appearance   // namespace
         << colorScheme; // key
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* call) {
        call->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *call;
        // No portal, or one without the setting: Qt's palette stands.
        if (!reply.isError())
            apply(Preference(unwrap(reply.argumentAt(0))));
    });
}

void DesktopColorScheme::settingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    if (group == appearance && key == colorScheme)
        apply(Preference(unwrap(value.variant())));
}

void DesktopColorScheme::apply(Preference preference)
{
    if (preference != Preference::Dark && preference != Preference::Light)
        preference = Preference::None;
    const bool changed = preference != m_preference;
    m_preference = preference;
    const QPalette original = m_original.value_or(QGuiApplication::palette());
    const bool wantsDark = preference == Preference::Dark;
    if (preference == Preference::None || wantsDark == isDark(original)) {
        if (m_original)
            QGuiApplication::setPalette(*std::exchange(m_original, std::nullopt));
    } else {
        m_original = original;
        QGuiApplication::setPalette(wantsDark ? darkPalette() : QPalette(QColor(0xef, 0xef, 0xef)));
    }
    if (changed)
        Q_EMIT preferenceChanged(preference);
}

QPalette DesktopColorScheme::darkPalette()
{
    QPalette palette(QColor(0x35, 0x35, 0x35), QColor(0x2b, 0x2b, 0x2b));
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const bool disabled = group == QPalette::Disabled;
        const QColor text = disabled ? QColor(0x80, 0x80, 0x80) : QColor(0xee, 0xee, 0xee);
        palette.setColor(group, QPalette::Window, QColor(0x2b, 0x2b, 0x2b));
        palette.setColor(group, QPalette::WindowText, text);
        palette.setColor(group, QPalette::Base, QColor(0x1f, 0x1f, 0x1f));
        palette.setColor(group, QPalette::AlternateBase, QColor(0x26, 0x26, 0x26));
        palette.setColor(group, QPalette::Text, text);
        palette.setColor(group, QPalette::Button, QColor(0x35, 0x35, 0x35));
        palette.setColor(group, QPalette::ButtonText, text);
        palette.setColor(group, QPalette::ToolTipBase, QColor(0x1f, 0x1f, 0x1f));
        palette.setColor(group, QPalette::ToolTipText, text);
        palette.setColor(group, QPalette::PlaceholderText, QColor(0x8a, 0x8a, 0x8a));
        palette.setColor(group, QPalette::Highlight, disabled ? QColor(0x50, 0x50, 0x50) : QColor(0x35, 0x84, 0xe4));
        palette.setColor(group, QPalette::HighlightedText, Qt::white);
        palette.setColor(group, QPalette::Link, QColor(0x78, 0xae, 0xed));
    }
    return palette;
}

} // namespace velto
