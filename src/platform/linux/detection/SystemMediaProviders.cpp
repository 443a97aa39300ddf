#include "SystemMediaProviders.h"

#include "detection/KnownApplications.h"
#include "detection/ScreenRecordingRule.h"

#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

constexpr QStringView mprisPrefix = u"org.mpris.MediaPlayer2.";

// "org.mpris.MediaPlayer2.vlc.instance4321" → "vlc"
QString playerName(const QString& busName)
{
    static const QRegularExpression instance(u"\\.instance[_0-9]*$"_s);
    QString name = busName.mid(mprisPrefix.size());
    name.remove(instance);
    return name;
}

} // namespace

SystemVideoPlayback::SystemVideoPlayback(QDBusConnection sessionBus)
    : m_bus(std::move(sessionBus))
{}

std::optional<QVariant> SystemVideoPlayback::property(const QString& service, const QString& interface,
                                                      const QString& name) const
{
    auto message = QDBusMessage::createMethodCall(service, u"/org/mpris/MediaPlayer2"_s,
                                                  u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    message << interface << name;
    const QDBusMessage reply = m_bus.call(message, QDBus::Block, callTimeout);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty()) {
        m_log.warn(u"mpris-property"_s,
                   u"A media player (%1) did not tell its %2: %3"_s.arg(service, name, reply.errorMessage()));
        return std::nullopt;
    }
    return reply.arguments().constFirst().value<QDBusVariant>().variant();
}

bool SystemVideoPlayback::isPlaying(const QString& bundleIdentifier) const
{
    if (!KnownApplications::playbackQueryBundleIdentifiers().contains(bundleIdentifier))
        return false;
    if (!m_bus.isConnected()) {
        m_log.warn(u"mpris-bus"_s, u"No session bus; media players cannot be asked"_s);
        return false;
    }
    const auto list = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                                     u"org.freedesktop.DBus"_s, u"ListNames"_s);
    const QDBusReply<QStringList> names = m_bus.call(list, QDBus::Block, callTimeout);
    if (!names.isValid()) {
        m_log.warn(u"mpris-list"_s, u"The session bus did not list its names: %1"_s.arg(names.error().message()));
        return false;
    }
    for (const QString& name : names.value()) {
        if (!name.startsWith(mprisPrefix))
            continue;
        bool belongs = playerName(name).compare(bundleIdentifier, Qt::CaseInsensitive) == 0;
        if (!belongs) {
            const auto entry = property(name, u"org.mpris.MediaPlayer2"_s, u"DesktopEntry"_s);
            belongs = entry && entry->toString().compare(bundleIdentifier, Qt::CaseInsensitive) == 0;
        }
        if (!belongs)
            continue;
        const auto status = property(name, u"org.mpris.MediaPlayer2.Player"_s, u"PlaybackStatus"_s);
        if (status && status->toString() == u"Playing"_s)
            return true;
    }
    return false;
}

SystemScreenRecordingState::SystemScreenRecordingState(std::shared_ptr<X11Link> x11,
                                                       std::shared_ptr<PipeWireCapture> capture)
    : SystemScreenRecordingState(
          [windows = std::make_shared<SystemWindowList>(std::move(x11))] { return windows->titledWindows(); },
          std::move(capture))
{}

SystemScreenRecordingState::SystemScreenRecordingState(ScreenRecordingRule::WindowTitles titles,
                                                       std::shared_ptr<PipeWireCapture> capture)
    : m_titles(std::move(titles))
    , m_capture(std::move(capture))
{}

bool SystemScreenRecordingState::isScreenRecording(const QList<AppSnapshot>& runningApplications) const
{
    const ScreenRecordingRule titles(m_titles);
    if (titles.isScreenRecording(runningApplications))
        return true;
    return m_capture && m_capture->isCapturing();
}

SystemAppCategory::SystemAppCategory(std::shared_ptr<AppIdentityResolver> identities,
                                     std::shared_ptr<WindowClassMemo> memo)
    : m_identities(std::move(identities))
    , m_memo(std::move(memo))
{}

std::optional<QString> SystemAppCategory::category(qint32 processIdentifier) const
{
    if (processIdentifier == 0)
        return std::nullopt;
    // A negative number stands for a Wayland app_id with no known process: only its desktop file can tell.
    if (processIdentifier > 0) {
        const auto steamApp = m_identities->processes().environmentValue(processIdentifier, "SteamAppId");
        if (steamApp && !steamApp->isEmpty() && *steamApp != "0")
            return u"Game;"_s;
    }
    const WindowClassMemo::Classes classes = m_memo->classes(processIdentifier);
    const auto entry = processIdentifier > 0
                           ? m_identities->desktopEntry(processIdentifier, classes.instance, classes.windowClass)
                           : m_identities->desktopEntries().entryForWindowClass(classes.windowClass);
    if (!entry || entry->categories.isEmpty())
        return std::nullopt;
    return entry->categories.join(u';') + u';';
}

} // namespace velto
