#include "KWinScriptToplevels.h"

#include "KWinScript.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {
const QString kwinService = u"org.kde.KWin"_s;
const QString scriptingInterface = u"org.kde.kwin.Scripting"_s;
} // namespace

KWinScriptToplevels::KWinScriptToplevels(QDBusConnection bus, std::shared_ptr<WaylandLink> outputs, QObject* parent)
    : QObject(parent)
    , m_bus(std::move(bus))
    , m_script(QDir::tempPath() + u"/velto-kwin-XXXXXX.js"_s)
    , m_reported(std::move(outputs))
{}

KWinScriptToplevels::~KWinScriptToplevels()
{
    if (m_loaded) {
        auto unload =
            QDBusMessage::createMethodCall(kwinService, u"/Scripting"_s, scriptingInterface, u"unloadScript"_s);
        unload << QString(pluginName); // pluginName
        m_bus.call(unload, QDBus::Block, 500);
    }
    m_bus.unregisterObject(QString(objectPath));
}

bool KWinScriptToplevels::start()
{
    if (!m_bus.isConnected() || !m_bus.registerObject(QString(objectPath), this, QDBusConnection::ExportAllSlots)) {
        m_log.warn(u"kwin-script-bus"_s, u"No session bus for KWin to report windows on"_s);
        return false;
    }
    QString source = QString::fromUtf8(kwinWindowsScript);
    source.replace(u"@SERVICE@"_s, m_bus.baseService())
        .replace(u"@PATH@"_s, QString(objectPath))
        .replace(u"@INTERFACE@"_s, u"com.velto.app.KWinWindows"_s);
    if (!m_script.open() || m_script.write(source.toUtf8()) < 0 || !m_script.flush()) {
        m_log.warn(u"kwin-script-file"_s, u"Could not write the KWin script: %1"_s.arg(m_script.errorString()));
        return false;
    }

    // One left behind by an earlier run that ended abruptly would report to nobody; loading refuses a second.
    auto unload = QDBusMessage::createMethodCall(kwinService, u"/Scripting"_s, scriptingInterface, u"unloadScript"_s);
    unload << QString(pluginName); // pluginName
    m_bus.asyncCall(unload);
    auto load = QDBusMessage::createMethodCall(kwinService, u"/Scripting"_s, scriptingInterface, u"loadScript"_s);
    load << m_script.fileName()  // filePath
         << QString(pluginName); // pluginName
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(load), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* call) {
        call->deleteLater();
        const QDBusPendingReply<int> reply = *call;
        // Not KWin's session: nothing to say.
        if (reply.isError() && reply.error().type() == QDBusError::ServiceUnknown)
            return;
        if (reply.isError() || reply.value() < 0) {
            m_log.warn(u"kwin-script-load"_s, u"KWin did not load Velto's window script: %1"_s.arg(
                                                  reply.isError() ? reply.error().message() : u"refused"_s));
            return;
        }
        m_kwinPeer = reply.reply().service();
        m_loaded = true;
        run(reply.value());
    });
    return true;
}

void KWinScriptToplevels::run(int scriptId)
{
    // KWin 6 keeps scripts under /Scripting, KWin 5 at the root.
    auto kwin6 = QDBusMessage::createMethodCall(kwinService, u"/Scripting/Script%1"_s.arg(scriptId),
                                                u"org.kde.kwin.Script"_s, u"run"_s);
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(kwin6), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, scriptId](QDBusPendingCallWatcher* call) {
        call->deleteLater();
        if (!call->isError())
            return;
        auto kwin5 =
            QDBusMessage::createMethodCall(kwinService, u"/%1"_s.arg(scriptId), u"org.kde.kwin.Script"_s, u"run"_s);
        auto* next = new QDBusPendingCallWatcher(m_bus.asyncCall(kwin5), this);
        connect(next, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* second) {
            second->deleteLater();
            if (second->isError())
                m_log.warn(u"kwin-script-run"_s,
                           u"KWin did not run Velto's window script: %1"_s.arg(second->error().message()));
        });
    });
}

void KWinScriptToplevels::update(const QString& windows)
{
    // Window titles are private to the session: only KWin's report counts.
    if (!calledFromDBus() || message().service() != m_kwinPeer)
        return;
    QList<WaylandToplevel> toplevels;
    QList<QRect> geometries;
    QHash<QString, qint32> standIns;
    for (const QJsonValue& value : QJsonDocument::fromJson(windows.toUtf8()).array()) {
        const QJsonObject window = value.toObject();
        WaylandToplevel toplevel;
        toplevel.appId = window.value(u"appId"_s).toString();
        toplevel.title = window.value(u"title"_s).toString();
        toplevel.pid = window.value(u"pid"_s).toInt();
        if (toplevel.pid <= 0)
            toplevel.pid =
                *standIns.insert(toplevel.appId, standIns.value(toplevel.appId, -qint32(standIns.size() + 1)));
        toplevel.activated = window.value(u"active"_s).toBool();
        toplevel.fullscreen = window.value(u"fullscreen"_s).toBool();
        toplevel.minimized = window.value(u"minimized"_s).toBool();
        toplevels.append(toplevel);
        geometries.append(QRect(window.value(u"x"_s).toInt(), window.value(u"y"_s).toInt(),
                                window.value(u"width"_s).toInt(), window.value(u"height"_s).toInt()));
    }
    m_reported.set(std::move(toplevels), std::move(geometries));
}

bool KWinScriptToplevels::isAvailable() const
{
    return m_reported.isAvailable();
}

QString KWinScriptToplevels::name() const
{
    return u"kwin-script"_s;
}

WaylandFacts KWinScriptToplevels::facts() const
{
    return m_reported.facts();
}

} // namespace velto
