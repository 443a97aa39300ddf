#include "SystemGnomeExtension.h"

#include "detection/LogOnce.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QPointer>

// Types and signatures only: the library itself is loaded on first use (see Gio below).
#include <gio/gio.h>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

constexpr QLatin1StringView shellService{"org.gnome.Shell"};
constexpr QLatin1StringView shellPath{"/org/gnome/Shell"};
constexpr QLatin1StringView extensionsInterface{"org.gnome.Shell.Extensions"};
// The name the extension holds while it runs.
constexpr QLatin1StringView extensionService{"com.velto.app.Shell"};
constexpr int callTimeoutMs = 5000;

constexpr char schemaId[] = "org.gnome.shell";
constexpr char enabledKey[] = "enabled-extensions";
constexpr char disabledKey[] = "disabled-extensions";
constexpr char userExtensionsOffKey[] = "disable-user-extensions";

const LogOnce& logOnce()
{
    static const LogOnce once;
    return once;
}

// GIO, loaded the first time GNOME Shell's settings are needed. Linked, it would map about 1 MB more into every
// Velto, on every desktop, for a question asked only on GNOME when the settings window opens or the command
// line asks. None when it cannot be loaded.
struct Gio {
    decltype(&g_settings_schema_source_get_default) schemaSourceDefault = nullptr;
    decltype(&g_settings_schema_source_lookup) schemaLookup = nullptr;
    decltype(&g_settings_schema_has_key) schemaHasKey = nullptr;
    decltype(&g_settings_schema_unref) schemaUnref = nullptr;
    decltype(&g_settings_new_full) settingsNew = nullptr;
    decltype(&g_settings_get_strv) getStrv = nullptr;
    decltype(&g_settings_set_strv) setStrv = nullptr;
    decltype(&g_settings_get_boolean) getBoolean = nullptr;
    decltype(&g_settings_set_boolean) setBoolean = nullptr;
    decltype(&g_settings_is_writable) isWritable = nullptr;
    decltype(&g_settings_sync) sync = nullptr;
    decltype(&g_object_unref) unref = nullptr;
    decltype(&g_signal_connect_data) connect = nullptr;
    decltype(&g_strfreev) strfreev = nullptr;

    static const Gio* get()
    {
        static const std::optional<Gio> loaded = load();
        return loaded ? &*loaded : nullptr;
    }

private:
    static std::optional<Gio> load()
    {
        // Never unloaded: GIO keeps threads and types for the life of the process.
        QLibrary library(u"gio-2.0"_s, 0);
        if (!library.load()) {
            logOnce().warn(u"gio"_s, u"GNOME Shell's settings cannot be read: "_s + library.errorString());
            return std::nullopt;
        }
        Gio gio;
        bool all = true;
        const auto resolve = [&]<typename Function>(Function& function, const char* name) {
            function = reinterpret_cast<Function>(library.resolve(name));
            all = all && function;
        };
        resolve(gio.schemaSourceDefault, "g_settings_schema_source_get_default");
        resolve(gio.schemaLookup, "g_settings_schema_source_lookup");
        resolve(gio.schemaHasKey, "g_settings_schema_has_key");
        resolve(gio.schemaUnref, "g_settings_schema_unref");
        resolve(gio.settingsNew, "g_settings_new_full");
        resolve(gio.getStrv, "g_settings_get_strv");
        resolve(gio.setStrv, "g_settings_set_strv");
        resolve(gio.getBoolean, "g_settings_get_boolean");
        resolve(gio.setBoolean, "g_settings_set_boolean");
        resolve(gio.isWritable, "g_settings_is_writable");
        resolve(gio.sync, "g_settings_sync");
        resolve(gio.unref, "g_object_unref"); // GObject's and GLib's, through GIO's own dependencies
        resolve(gio.connect, "g_signal_connect_data");
        resolve(gio.strfreev, "g_strfreev");
        if (!all) {
            logOnce().warn(u"gio"_s, u"GNOME Shell's settings cannot be read: this GIO lacks GSettings"_s);
            return std::nullopt;
        }
        return gio;
    }
};

// Where GNOME Shell looks for extensions: the user's data folder, then the system's, as the XDG base directory
// specification names them.
bool installedCopyExists()
{
    QString userData = qEnvironmentVariable("XDG_DATA_HOME");
    if (userData.isEmpty())
        userData = QDir::homePath() + u"/.local/share"_s;
    QString systemData = qEnvironmentVariable("XDG_DATA_DIRS");
    if (systemData.isEmpty())
        systemData = u"/usr/local/share/:/usr/share/"_s;
    const QStringList folders = QStringList{userData} + systemData.split(u':', Qt::SkipEmptyParts);
    for (const QString& folder : folders) {
        // The shell loads a folder named by the uuid with a metadata.json in it.
        if (QFileInfo(folder + u"/gnome-shell/extensions/"_s + SystemGnomeExtension::uuid + u"/metadata.json"_s)
                .isFile())
            return true;
    }
    return false;
}

QDBusMessage shellCall(const QString& method, const QVariantList& arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(shellService, shellPath, extensionsInterface, method);
    call.setArguments(arguments);
    // Never start a shell to ask it.
    call.setAutoStartService(false);
    return call;
}

bool isNoOwner(const QDBusError& error)
{
    return error.type() == QDBusError::ServiceUnknown || error.name() == u"org.freedesktop.DBus.Error.NameHasNoOwner"_s;
}

} // namespace

// GNOME Shell's settings for this user. Reading a missing schema or key would abort the process, so both are
// looked up first; without them the object is not valid and says nothing. Tells of changes, from whoever makes them,
// while it lives.
class ShellSettings final {
public:
    explicit ShellSettings(std::function<void()> changed)
        : m_gio(Gio::get())
        , m_changed(std::move(changed))
    {
        if (!m_gio)
            return;
        GSettingsSchemaSource* source = m_gio->schemaSourceDefault();
        GSettingsSchema* schema = source ? m_gio->schemaLookup(source, schemaId, TRUE /* recursive */) : nullptr;
        if (!schema)
            return;
        const bool complete = m_gio->schemaHasKey(schema, enabledKey) && m_gio->schemaHasKey(schema, disabledKey) &&
                              m_gio->schemaHasKey(schema, userExtensionsOffKey);
        if (complete)
            m_settings = m_gio->settingsNew(schema, nullptr /* default backend */, nullptr /* the schema's path */);
        m_gio->schemaUnref(schema);
        if (!m_settings)
            return;
        // Told only for keys read since; every gathering reads all three.
        m_gio->connect(m_settings, "changed", G_CALLBACK(&ShellSettings::keyChanged), this, nullptr /* no destroy */,
                       GConnectFlags(0));
    }
    ~ShellSettings()
    {
        if (m_settings)
            m_gio->unref(m_settings);
    }
    ShellSettings(const ShellSettings&) = delete;
    ShellSettings& operator=(const ShellSettings&) = delete;

    [[nodiscard]] bool isValid() const { return m_settings != nullptr; }

    [[nodiscard]] QStringList list(const char* key) const
    {
        QStringList result;
        gchar** values = m_gio->getStrv(m_settings, key);
        for (gchar** value = values; value && *value; ++value)
            result.append(QString::fromUtf8(*value));
        m_gio->strfreev(values);
        return result;
    }
    [[nodiscard]] bool flag(const char* key) const { return m_gio->getBoolean(m_settings, key); }
    [[nodiscard]] bool isWritable(const char* key) const { return m_gio->isWritable(m_settings, key); }

    bool setList(const char* key, const QStringList& values)
    {
        QList<QByteArray> utf8;
        QList<const gchar*> pointers;
        for (const QString& value : values)
            utf8.append(value.toUtf8());
        for (const QByteArray& value : std::as_const(utf8))
            pointers.append(value.constData());
        pointers.append(nullptr);
        return m_gio->setStrv(m_settings, key, pointers.constData());
    }
    bool setFlag(const char* key, bool value) { return m_gio->setBoolean(m_settings, key, value); }

    // Waits until what was written is stored; a process that exits without it may lose the change.
    void sync() const
    {
        if (m_settings)
            m_gio->sync();
    }

private:
    static void keyChanged(GSettings* /*settings*/, const gchar* key, gpointer self)
    {
        const QByteArrayView changed(key);
        if (changed == enabledKey || changed == disabledKey || changed == userExtensionsOffKey)
            static_cast<ShellSettings*>(self)->m_changed();
    }

    const Gio* m_gio = nullptr;
    std::function<void()> m_changed;
    GSettings* m_settings = nullptr;
};

// One gathering: the shell's answer and the extension's bus name, asked side by side.
struct SystemGnomeExtension::Gathering {
    quint64 round = 0;
    int pending = 2;
    GnomeExtensionFacts facts;
};

SystemGnomeExtension::SystemGnomeExtension(QDBusConnection bus, QObject* parent)
    : GnomeExtensionControlling(parent)
    , m_bus(std::move(bus))
{}

SystemGnomeExtension::~SystemGnomeExtension()
{
    if (m_wroteSettings && m_settings)
        m_settings->sync();
}

ShellSettings& SystemGnomeExtension::settings()
{
    // Kept from the first gathering on GNOME Shell, to hear of changes.
    if (!m_settings)
        m_settings = std::make_unique<ShellSettings>([this] { refreshSoon(); });
    return *m_settings;
}

void SystemGnomeExtension::refreshSoon()
{
    // Several keys change at once, and our own writes tell of themselves too: one gathering for them all, after.
    if (std::exchange(m_refreshQueued, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_refreshQueued = false;
            refresh();
        },
        Qt::QueuedConnection);
}

void SystemGnomeExtension::watch()
{
    if (m_watching || !m_bus.isConnected())
        return;
    m_watching = true;
    // The extension takes its name when it starts and drops it when it stops; the shell's own name comes back
    // when it restarts (on X11, or at the next login).
    auto* watcher = new QDBusServiceWatcher(this);
    watcher->setConnection(m_bus);
    watcher->setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    watcher->setWatchedServices({QString(extensionService), QString(shellService)});
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &SystemGnomeExtension::refresh);
    // Enabled or disabled elsewhere (the Extensions app, gnome-extensions), or failed while starting.
    m_bus.connect(shellService, shellPath, extensionsInterface, u"ExtensionStateChanged"_s, this,
                  SLOT(extensionStateChanged(QString, QVariantMap)));
}

void SystemGnomeExtension::extensionStateChanged(const QString& changed, const QVariantMap& /*state*/)
{
    if (changed == uuid)
        refresh();
}

void SystemGnomeExtension::refresh()
{
    watch();
    auto gathering = std::make_shared<Gathering>();
    gathering->round = ++m_round;
    if (!m_bus.isConnected()) {
        gathered(gathering->round, gathering->facts);
        return;
    }
    const auto done = [this, gathering] {
        if (--gathering->pending == 0)
            gathered(gathering->round, gathering->facts);
    };

    auto* info = new QDBusPendingCallWatcher(
        m_bus.asyncCall(shellCall(u"GetExtensionInfo"_s, {QString(uuid) /* uuid */}), callTimeoutMs), this);
    connect(info, &QDBusPendingCallWatcher::finished, this, [gathering, done](QDBusPendingCallWatcher* reply) {
        reply->deleteLater();
        GnomeExtensionFacts& facts = gathering->facts;
        if (reply->isError()) {
            facts.shellRunning = !isNoOwner(reply->error());
            if (facts.shellRunning)
                logOnce().warn(u"GetExtensionInfo"_s,
                               u"GNOME Shell did not say how Velto's extension is: "_s + reply->error().message());
        } else {
            facts.shellRunning = true;
            // An empty answer: the shell has not loaded it.
            const QVariantMap extension = qdbus_cast<QVariantMap>(reply->reply().arguments().value(0));
            const QVariant state = extension.value(u"state"_s);
            if (state.isValid())
                facts.shellState = int(state.toDouble());
        }
        done();
    });

    QDBusMessage owned = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                                        u"org.freedesktop.DBus"_s, u"NameHasOwner"_s);
    owned << QString(extensionService); // name
    auto* serving = new QDBusPendingCallWatcher(m_bus.asyncCall(owned, callTimeoutMs), this);
    connect(serving, &QDBusPendingCallWatcher::finished, this, [gathering, done](QDBusPendingCallWatcher* reply) {
        reply->deleteLater();
        gathering->facts.serving = !reply->isError() && reply->reply().arguments().value(0).toBool();
        done();
    });
}

void SystemGnomeExtension::gathered(quint64 round, GnomeExtensionFacts facts)
{
    // A later gathering is under way and will answer for this one too.
    if (round != m_round)
        return;
    // The files and the settings are local and quick to read; GIO is loaded for GNOME Shell alone.
    if (facts.shellRunning) {
        facts.installed = installedCopyExists();
        const ShellSettings& shell = settings();
        facts.settingsReadable = shell.isValid();
        if (shell.isValid()) {
            facts.listedEnabled = shell.list(enabledKey).contains(uuid);
            facts.listedDisabled = shell.list(disabledKey).contains(uuid);
            facts.userExtensionsOff = shell.flag(userExtensionsOffKey);
        }
    }
    m_facts = facts;
    Q_EMIT factsGathered();
    // Enabling calls whose change this gathering has seen.
    const auto waiting = std::exchange(m_afterRound, {});
    for (const auto& [after, then] : waiting) {
        if (after <= round)
            then();
        else
            m_afterRound.append({after, then});
    }
}

void SystemGnomeExtension::enable(std::function<void(const QString& error)> done)
{
    const GnomeExtensionEnabling enabling = m_facts ? gnomeExtensionEnabling(*m_facts) : GnomeExtensionEnabling();
    if (!enabling.possible()) {
        done(m_facts && gnomeExtensionState(*m_facts) == GnomeExtensionState::NotEnabled
                 ? tr("GNOME Shell's settings cannot be read here")
                 : QString());
        return;
    }
    if (enabling.askShell)
        askShell(enabling, std::move(done));
    else
        refreshThen(std::move(done), writeSettings(enabling));
}

void SystemGnomeExtension::askShell(const GnomeExtensionEnabling& enabling, std::function<void(const QString&)> done)
{
    QPointer<SystemGnomeExtension> self(this);
    // The shell's way: it writes the settings itself and starts the extension before it answers.
    auto enableExtension = [self, enabling, done] {
        if (!self)
            return;
        auto* reply = new QDBusPendingCallWatcher(
            self->m_bus.asyncCall(shellCall(u"EnableExtension"_s, {QString(uuid) /* uuid */}), callTimeoutMs), self);
        connect(reply, &QDBusPendingCallWatcher::finished, self, [self, enabling, done](QDBusPendingCallWatcher* r) {
            r->deleteLater();
            if (!r->isError() && r->reply().arguments().value(0).toBool()) {
                self->refreshThen(done, QString());
                return;
            }
            // The shell no longer has it loaded (or would not say): the settings, for the next login.
            GnomeExtensionEnabling fallback = enabling;
            fallback.askShell = false;
            fallback.writeLists = true;
            self->refreshThen(done, self->writeSettings(fallback));
        });
    };
    if (!enabling.turnOnUserExtensions) {
        enableExtension();
        return;
    }
    // The switch first, so the shell starts the extension as soon as it is listed.
    QDBusMessage set =
        QDBusMessage::createMethodCall(shellService, shellPath, u"org.freedesktop.DBus.Properties"_s, u"Set"_s);
    set << QString(extensionsInterface) << u"UserExtensionsEnabled"_s << QVariant::fromValue(QDBusVariant(true));
    set.setAutoStartService(false);
    auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(set, callTimeoutMs), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [enableExtension](QDBusPendingCallWatcher* r) {
        r->deleteLater();
        enableExtension();
    });
}

QString SystemGnomeExtension::writeSettings(const GnomeExtensionEnabling& enabling)
{
    ShellSettings& settings = this->settings();
    if (!settings.isValid())
        return tr("GNOME Shell's settings cannot be read here");
    const bool writable =
        (!enabling.writeLists || (settings.isWritable(enabledKey) && settings.isWritable(disabledKey))) &&
        (!enabling.turnOnUserExtensions || settings.isWritable(userExtensionsOffKey));
    if (!writable)
        return tr("GNOME Shell's extension settings are locked on this system");
    bool written = true;
    if (enabling.writeLists) {
        QStringList enabled = settings.list(enabledKey);
        if (!enabled.contains(uuid)) {
            enabled.append(uuid);
            written = settings.setList(enabledKey, enabled) && written;
        }
        QStringList disabled = settings.list(disabledKey);
        if (disabled.removeAll(uuid) > 0)
            written = settings.setList(disabledKey, disabled) && written;
    }
    if (enabling.turnOnUserExtensions)
        written = settings.setFlag(userExtensionsOffKey, false) && written;
    m_wroteSettings = true;
    return written ? QString() : tr("GNOME Shell's settings could not be written");
}

void SystemGnomeExtension::refreshThen(std::function<void(const QString&)> done, const QString& error)
{
    // Before asking: without a bus the answer comes at once.
    m_afterRound.append({m_round + 1, [done, error] { done(error); }});
    refresh();
}

} // namespace velto
