#pragma once

#include "TestWindowProcess.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QPair>
#include <QProcess>
#include <QRect>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QThread>
#include <QtDebug>

#include <algorithm>
#include <memory>
#include <optional>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

// A headless Wayland compositor for tests: sway (wlroots), Weston, KWin or GNOME Shell, listening in a runtime
// directory of its own, with a private session bus, so nothing reaches the user's desktop. Stops everything it
// started.
// Clients get the session through environment(); the harness itself needs Qt D-Bus and the wayland-info tool.
class HeadlessCompositor final {
public:
    enum class Kind { Sway, Weston, KWin, Gnome };

    struct Options {
        // Output sizes, placed left to right from (0, 0). Empty means 1920x1080 and 1280x720 on sway, two of
        // 1024x600 on KWin, one of 1024x600 on Weston, 1024x600 and 800x600 on GNOME Shell. KWin gives every
        // output the first size and Weston has a single output: asking them for anything else fails the start.
        QList<QSize> outputs;
        // Sway only: a swaybar, whose tray (org.kde.StatusNotifierWatcher) is on the private bus.
        bool swayBar = false;
        // KWin only: restricted interfaces (org_kde_plasma_window_management, org_kde_kwin_fake_input, …) KWin
        // offers the executable at each absolute path, through a desktop file written before it starts.
        QHash<QString, QStringList> kwinInterfaces;
        // GNOME Shell only: extension folders (named by their UUIDs), installed for the session's user and
        // enabled before the shell starts.
        QStringList gnomeExtensions;
    };

    HeadlessCompositor() = default;
    HeadlessCompositor(const HeadlessCompositor&) = delete;
    HeadlessCompositor& operator=(const HeadlessCompositor&) = delete;
    ~HeadlessCompositor() { stop(); }

    [[nodiscard]] static bool isAvailable(Kind kind)
    {
        QStringList tools = {QStringLiteral("wayland-info"), QStringLiteral("dbus-daemon")};
        switch (kind) {
        case Kind::Sway:
            tools << QStringLiteral("sway") << QStringLiteral("swaymsg") << QStringLiteral("swaybar");
            if (geteuid() == 0)
                tools << QStringLiteral("setpriv");
            break;
        case Kind::Weston:
            tools << QStringLiteral("weston");
            break;
        case Kind::KWin:
            tools << QStringLiteral("kwin_wayland");
            break;
        case Kind::Gnome:
            // It needs a mount namespace of its own (see gnomeCommand), which takes root.
            if (geteuid() != 0)
                return false;
            tools << QStringLiteral("gnome-shell") << QStringLiteral("unshare");
            break;
        }
        for (const QString& tool : tools) {
            if (QStandardPaths::findExecutable(tool).isEmpty())
                return false;
        }
        return true;
    }

    bool start(Kind kind) { return start(kind, Options()); }

    bool start(Kind kind, const Options& options)
    {
        stop();
        m_kind = kind;
        m_outputs = outputGeometries(kind, options.outputs);
        if (m_outputs.isEmpty()) {
            qWarning("HeadlessCompositor: this compositor cannot make the outputs asked for");
            return false;
        }
        if (!prepareDirectories() || !startBus()) {
            stop();
            return false;
        }
        QStringList command;
        QProcessEnvironment env = compositorEnvironment();
        switch (kind) {
        case Kind::Sway:
            command = swayCommand(options, env);
            break;
        case Kind::Weston:
            command = westonCommand();
            break;
        case Kind::KWin:
            command = kwinCommand(options, env);
            break;
        case Kind::Gnome:
            command = gnomeCommand(options, env);
            break;
        }
        if (command.isEmpty()) {
            stop();
            return false;
        }
        m_command = command;
        m_compositorEnvironment = env;
        m_options = options;
        return launch();
    }

    // Ends the compositor and starts it afresh in the same session (home folder, settings, buses), as a new
    // login would.
    bool restart()
    {
        if (!m_compositor || m_command.isEmpty())
            return false;
        stopGroup(m_compositor);
        return launch();
    }

    void stop()
    {
        for (auto& window : m_windows) {
            window->closeWriteChannel();
            if (!window->waitForFinished(2000)) {
                window->kill();
                window->waitForFinished();
            }
        }
        m_windows.clear();
        if (!m_busConnectionName.isEmpty()) {
            QDBusConnection::disconnectFromBus(m_busConnectionName);
            m_busConnectionName.clear();
        }
        stopGroup(m_compositor);
        stopGroup(m_bus);
        stopGroup(m_systemBus);
        m_busAddress.clear();
        m_display.clear();
        m_swaySocket.clear();
        m_outputs.clear();
        m_command.clear();
        m_base.reset();
    }

    [[nodiscard]] bool isRunning() const { return m_compositor && m_compositor->state() == QProcess::Running; }
    [[nodiscard]] Kind kind() const { return m_kind; }
    // The socket's name in runtimeDir(), as WAYLAND_DISPLAY takes it.
    [[nodiscard]] const QString& waylandDisplay() const { return m_display; }
    // The clients' XDG_RUNTIME_DIR. Sway under root has one of its own, which clients cannot own, so they get a
    // directory of theirs with a link to its socket (Qt refuses a runtime directory another user owns).
    [[nodiscard]] QString runtimeDir() const
    {
        return m_base ? m_base->filePath(runsAsNobody() ? QStringLiteral("client-runtime") : QStringLiteral("runtime"))
                      : QString();
    }
    // The socket's absolute path, which wl_display_connect() takes without any environment.
    [[nodiscard]] QString socketPath() const { return runtimeDir() + QLatin1Char('/') + m_display; }
    [[nodiscard]] const QString& busAddress() const { return m_busAddress; }
    // Output rectangles in the compositor's layout, in the order it announces them.
    [[nodiscard]] const QList<QRect>& outputs() const { return m_outputs; }

    // What a client of this session sees: no X display, Qt on Wayland, the private bus, and sway's IPC socket.
    [[nodiscard]] QProcessEnvironment environment() const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_SOCKET", "SWAYSOCK", "I3SOCK", "XDG_CURRENT_DESKTOP"})
            env.remove(QString::fromLatin1(name));
        env.insert(QStringLiteral("WAYLAND_DISPLAY"), m_display);
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtimeDir());
        env.insert(QStringLiteral("XDG_SESSION_TYPE"), QStringLiteral("wayland"));
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("wayland"));
        env.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_busAddress);
        if (!m_swaySocket.isEmpty())
            env.insert(QStringLiteral("SWAYSOCK"), m_swaySocket);
        // GNOME Shell's settings and extensions, as the shell itself reads them.
        if (m_kind == Kind::Gnome && m_base) {
            const QString home = m_base->filePath(QStringLiteral("home"));
            env.insert(QStringLiteral("XDG_CONFIG_HOME"), home + QStringLiteral("/.config"));
            env.insert(QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/.local/share"));
            env.insert(QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("keyfile"));
        }
        return env;
    }

    // Everything the compositor printed so far.
    [[nodiscard]] QString log() const
    {
        QFile file(m_base ? m_base->filePath(QStringLiteral("compositor.log")) : QString());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    // Runs a client (wtype, swaymsg, grim, …) in this session to its end; returns whether it exited with 0.
    bool run(const QString& program, const QStringList& arguments, QByteArray* output = nullptr,
             int timeoutMs = 10000) const
    {
        return runClient(program, arguments, output, timeoutMs, QProcess::ForwardedErrorChannel);
    }

    // The globals the compositor announces to wayland-info, by interface name, with their versions. KWin
    // decides per client executable, so this is what an ordinary client without a desktop file gets there.
    [[nodiscard]] QMap<QString, int> globals() const
    {
        QMap<QString, int> result;
        for (const auto& [interface, version] : announcedGlobals())
            result.insert(interface, version);
        return result;
    }

    // Sway's answer to `swaymsg -t TYPE [PAYLOAD]` as JSON; null when sway did not answer.
    [[nodiscard]] QJsonDocument swayMessage(const QString& type, const QString& payload = {}) const
    {
        QByteArray output;
        QStringList arguments = {QStringLiteral("-r"), QStringLiteral("-t"), type};
        if (!payload.isEmpty())
            arguments << QStringLiteral("--") << payload;
        // A failed command is in the answer; what swaymsg says besides would only repeat it.
        runClient(QStringLiteral("swaymsg"), arguments, &output, 10000, QProcess::SeparateChannels);
        return QJsonDocument::fromJson(output);
    }

    // Runs sway commands ("focus output HEADLESS-2", "[app_id=x] fullscreen enable"); true when all succeeded.
    bool swayCommand(const QString& command) const
    {
        const QJsonArray results = swayMessage(QStringLiteral("command"), command).array();
        bool success = !results.isEmpty();
        for (const QJsonValue& result : results)
            success = success && result.toObject().value(QStringLiteral("success")).toBool();
        return success;
    }

    [[nodiscard]] QJsonObject swayTree() const { return swayMessage(QStringLiteral("get_tree")).object(); }

    // The focused window's app_id on sway; empty when no window has focus (an empty workspace, say).
    [[nodiscard]] QString swayFocusedAppId() const
    {
        const QJsonObject focused = findSwayNode(
            swayTree(), [](const QJsonObject& node) { return node.value(QStringLiteral("focused")).toBool(); });
        return focused.value(QStringLiteral("app_id")).toString();
    }

    // The first node of the sway tree (windows, floating ones included) that matches.
    template <typename Predicate>
    [[nodiscard]] static QJsonObject findSwayNode(const QJsonObject& node, const Predicate& matches)
    {
        if (matches(node))
            return node;
        for (const char* children : {"nodes", "floating_nodes"}) {
            for (const QJsonValue& child : node.value(QString::fromLatin1(children)).toArray()) {
                const QJsonObject found = findSwayNode(child.toObject(), matches);
                if (!found.isEmpty())
                    return found;
            }
        }
        return {};
    }

    // The private session bus, where KWin serves org.kde.KWin and swaybar its tray watcher.
    [[nodiscard]] QDBusConnection bus() const { return QDBusConnection(m_busConnectionName); }

    QDBusMessage callBus(const QString& service, const QString& path, const QString& interface, const QString& method,
                         const QVariantList& arguments = {}, int timeoutMs = 5000) const
    {
        QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
        message.setArguments(arguments);
        return bus().call(message, QDBus::Block, timeoutMs);
    }

    // Loads and starts a KWin script; what it print()s lands in log(). Returns false when KWin refused it.
    bool runKWinScript(const QString& source)
    {
        if (m_kind != Kind::KWin || !isRunning())
            return false;
        const QString name = QStringLiteral("velto-test-%1").arg(++m_scripts);
        QFile file(m_base->filePath(name + QStringLiteral(".js")));
        if (!file.open(QIODevice::WriteOnly) || file.write(source.toUtf8()) < 0)
            return false;
        file.close();
        const QString kwin = QStringLiteral("org.kde.KWin");
        const QDBusMessage loaded =
            callBus(kwin, QStringLiteral("/Scripting"), QStringLiteral("org.kde.kwin.Scripting"),
                    QStringLiteral("loadScript"), {file.fileName() /* path */, name /* plugin name */});
        if (loaded.type() != QDBusMessage::ReplyMessage || loaded.arguments().value(0).toInt() < 0)
            return false;
        const QDBusMessage ran = callBus(kwin, QLatin1Char('/') + QString::number(loaded.arguments().value(0).toInt()),
                                         QStringLiteral("org.kde.kwin.Script"), QStringLiteral("run"));
        return ran.type() == QDBusMessage::ReplyMessage;
    }

    // Runs JavaScript in GNOME Shell (started in unsafe mode, so Eval answers); the value as the shell prints it
    // (a string comes quoted), or none when the shell refused or threw.
    [[nodiscard]] std::optional<QString> gnomeEval(const QString& script) const
    {
        if (m_kind != Kind::Gnome || !isRunning())
            return std::nullopt;
        const QDBusMessage reply = callBus(QStringLiteral("org.gnome.Shell"), QStringLiteral("/org/gnome/Shell"),
                                           QStringLiteral("org.gnome.Shell"), QStringLiteral("Eval"), {script});
        if (reply.type() != QDBusMessage::ReplyMessage || !reply.arguments().value(0).toBool())
            return std::nullopt;
        return reply.arguments().value(1).toString();
    }

    // Starts a test window program (wayland_test_window) and waits until it reports its window mapped; the
    // process stays ours until closeWindow() or stop().
    QProcess* openWindow(const QString& windowProgram, const QStringList& arguments, QString* mapped = nullptr)
    {
        QByteArray line;
        auto process = startTestWindow(windowProgram, arguments, environment(), &line);
        if (!process)
            return nullptr;
        if (mapped)
            *mapped = QString::fromUtf8(line);
        m_windows.push_back(std::move(process));
        return m_windows.back().get();
    }

    void closeWindow(QProcess* window)
    {
        for (auto it = m_windows.begin(); it != m_windows.end(); ++it) {
            if (it->get() == window) {
                closeTestWindow(*window);
                m_windows.erase(it);
                return;
            }
        }
    }

private:
    // Sway refuses to run as root, so under root it runs as nobody; root's clients still reach its sockets.
    static constexpr uid_t kSwayUser = 65534;

    bool launch()
    {
        m_compositor =
            startGroup(m_command, m_compositorEnvironment, m_base->filePath(QStringLiteral("compositor.log")));
        // GNOME Shell loads its whole JavaScript shell first: on a loaded machine it needs the longer wait.
        const int startMs = m_kind == Kind::Gnome ? 40000 : 15000;
        if (!m_compositor || !waitUntilReady(m_options, QDeadlineTimer(startMs))) {
            qWarning().noquote() << "HeadlessCompositor: the compositor did not come up; its output:\n"
                                 << log().right(4000);
            stop();
            return false;
        }
        return true;
    }

    bool runClient(const QString& program, const QStringList& arguments, QByteArray* output, int timeoutMs,
                   QProcess::ProcessChannelMode errors) const
    {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.setProcessChannelMode(errors);
        process.start(QFileInfo(program).isAbsolute() ? program : QStandardPaths::findExecutable(program), arguments);
        if (!process.waitForFinished(timeoutMs)) {
            process.kill();
            process.waitForFinished();
            return false;
        }
        if (output)
            *output = process.readAllStandardOutput();
        return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    }

    static QList<QRect> outputGeometries(Kind kind, QList<QSize> sizes)
    {
        if (sizes.isEmpty()) {
            sizes = kind == Kind::Sway    ? QList<QSize>{{1920, 1080}, {1280, 720}}
                    : kind == Kind::KWin  ? QList<QSize>{{1024, 600}, {1024, 600}}
                    : kind == Kind::Gnome ? QList<QSize>{{1024, 600}, {800, 600}}
                                          : QList<QSize>{{1024, 600}};
        }
        if (kind == Kind::Weston && sizes.size() != 1)
            return {};
        QList<QRect> result;
        int x = 0;
        for (const QSize& size : sizes) {
            if (size.isEmpty() || (kind == Kind::KWin && size != sizes.first()))
                return {};
            result.append(QRect(QPoint(x, 0), size));
            x += size.width();
        }
        return result;
    }

    [[nodiscard]] bool runsAsNobody() const { return m_kind == Kind::Sway && geteuid() == 0; }

    bool prepareDirectories()
    {
        m_base = std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/velto-wayland-XXXXXX"));
        if (!m_base->isValid())
            return false;
        // The compositor's own user may pass through to its directories, but not list or change ours.
        const QByteArray base = QFile::encodeName(m_base->path());
        if (::chmod(base.constData(), 0711) != 0)
            return false;
        for (const char* name : {"runtime", "home"}) {
            const QByteArray path = base + '/' + name;
            if (::mkdir(path.constData(), 0700) != 0)
                return false;
            if (runsAsNobody() && ::chown(path.constData(), kSwayUser, kSwayUser) != 0)
                return false;
        }
        return !runsAsNobody() || ::mkdir(QByteArray(base + "/client-runtime").constData(), 0700) == 0;
    }

    bool startBus()
    {
        if (!startDaemon(QStringLiteral("session"), m_bus, &m_busAddress))
            return false;
        m_busConnectionName = QStringLiteral("velto-headless-compositor-%1").arg(reinterpret_cast<quintptr>(this));
        return QDBusConnection::connectToBus(m_busAddress, m_busConnectionName).isConnected();
    }

    // A dbus-daemon of the given type in its own directory; GNOME Shell's session bus also activates the
    // services installed on the system (the shell's notification daemon among them).
    bool startDaemon(const QString& type, std::unique_ptr<QProcess>& daemon, QString* address)
    {
        const QString directory = m_base->filePath(type + QStringLiteral("-bus"));
        if (!QDir().mkpath(directory) || ::chmod(QFile::encodeName(directory).constData(), 0755) != 0)
            return false;
        // Any user may connect (swaybar runs as nobody when the tests are root); only this directory knows it.
        const QString config =
            QStringLiteral("<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\"\n"
                           " \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
                           "<busconfig><type>%2</type><listen>unix:dir=%1</listen><auth>EXTERNAL</auth>%3\n"
                           "<policy context=\"default\"><allow user=\"*\"/><allow own=\"*\"/>\n"
                           "<allow send_destination=\"*\" eavesdrop=\"true\"/><allow eavesdrop=\"true\"/></policy>\n"
                           "</busconfig>\n")
                .arg(directory.toHtmlEscaped(), type,
                     m_kind == Kind::Gnome && type == QStringLiteral("session")
                         ? QStringLiteral("<standard_session_servicedirs/>")
                         : QString());
        const QString configPath = directory + QStringLiteral(".conf");
        QFile file(configPath);
        if (!file.open(QIODevice::WriteOnly) || file.write(config.toUtf8()) < 0)
            return false;
        file.close();
        daemon = std::make_unique<QProcess>();
        daemon->setChildProcessModifier([] {
            ::setpgid(0, 0);
            ::umask(0); // a socket the compositor's user can connect to
        });
        daemon->setStandardErrorFile(directory + QStringLiteral(".log")); // it complains about fd limits
        daemon->start(QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")),
                      {QStringLiteral("--config-file=") + configPath, QStringLiteral("--print-address"),
                       QStringLiteral("--nofork")});
        if (!daemon->waitForStarted(3000))
            return false;
        const QDeadlineTimer deadline(5000);
        while (!daemon->canReadLine() && daemon->state() == QProcess::Running && !deadline.hasExpired())
            daemon->waitForReadyRead(100);
        *address = QString::fromUtf8(daemon->readLine().trimmed());
        return !address->isEmpty();
    }

    [[nodiscard]] QProcessEnvironment compositorEnvironment() const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        // Neither an outer session nor the test's own Qt settings (offscreen platform, …) reach the compositor.
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "WAYLAND_SOCKET", "SWAYSOCK", "I3SOCK",
                                 "XDG_CURRENT_DESKTOP", "QT_QPA_PLATFORM", "QT_QUICK_BACKEND", "QT_PLUGIN_PATH"})
            env.remove(QString::fromLatin1(name));
        const QString home = m_base->filePath(QStringLiteral("home"));
        env.insert(QStringLiteral("HOME"), home);
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), home + QStringLiteral("/.config"));
        env.insert(QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/.local/share"));
        env.insert(QStringLiteral("XDG_CACHE_HOME"), home + QStringLiteral("/.cache"));
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_base->filePath(QStringLiteral("runtime")));
        env.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_busAddress);
        return env;
    }

    bool writeFile(const QString& path, const QString& text) const
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
            return false;
        file.close();
        return file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    }

    QStringList swayCommand(const Options& options, QProcessEnvironment& env)
    {
        QString config = QStringLiteral("xwayland disable\n");
        for (int i = 0; i < m_outputs.size(); ++i) {
            const QRect& output = m_outputs.at(i);
            config += QStringLiteral("output HEADLESS-%1 resolution %2x%3 position %4 %5\n")
                          .arg(i + 1)
                          .arg(output.width())
                          .arg(output.height())
                          .arg(output.x())
                          .arg(output.y());
        }
        if (options.swayBar)
            config += QStringLiteral("bar {\n    tray_output *\n}\n");
        const QString configPath = m_base->filePath(QStringLiteral("sway.conf"));
        if (!writeFile(configPath, config))
            return {};
        env.insert(QStringLiteral("WLR_BACKENDS"), QStringLiteral("headless"));
        env.insert(QStringLiteral("WLR_HEADLESS_OUTPUTS"), QString::number(m_outputs.size()));
        env.insert(QStringLiteral("WLR_LIBINPUT_NO_DEVICES"), QStringLiteral("1"));
        env.insert(QStringLiteral("WLR_RENDERER"), QStringLiteral("pixman"));
        QStringList command;
        if (runsAsNobody()) {
            command << QStandardPaths::findExecutable(QStringLiteral("setpriv"))
                    << QStringLiteral("--reuid=%1").arg(kSwayUser) << QStringLiteral("--regid=%1").arg(kSwayUser)
                    << QStringLiteral("--clear-groups");
        }
        return command << QStandardPaths::findExecutable(QStringLiteral("sway")) << QStringLiteral("-c") << configPath;
    }

    QStringList westonCommand()
    {
        m_display = QStringLiteral("wayland-1");
        return {QStandardPaths::findExecutable(QStringLiteral("weston")),
                QStringLiteral("--backend=headless-backend.so"),
                QStringLiteral("--use-pixman"), // the headless backend draws nothing without a renderer
                QStringLiteral("--width=%1").arg(m_outputs.first().width()),
                QStringLiteral("--height=%1").arg(m_outputs.first().height()),
                QStringLiteral("--socket=") + m_display,
                QStringLiteral("--idle-time=0"),
                QStringLiteral("--no-config")};
    }

    QStringList kwinCommand(const Options& options, QProcessEnvironment& env)
    {
        // Debian's binary carries a file capability that such machines refuse to execute; a copy has none. Its
        // platform plugin loads only for a binary named kwin_wayland.
        const QString binary = m_base->filePath(QStringLiteral("bin/kwin_wayland"));
        QDir().mkpath(QFileInfo(binary).path());
        if (!QFile::copy(QStandardPaths::findExecutable(QStringLiteral("kwin_wayland")), binary))
            return {};
        // KWin matches a client's executable against the first word of Exec= in the desktop files it knows.
        int entry = 0;
        for (auto it = options.kwinInterfaces.begin(); it != options.kwinInterfaces.end(); ++it) {
            const QString desktopFile =
                m_base->filePath(QStringLiteral("home/.local/share/applications/velto-test-%1.desktop").arg(++entry));
            const QString text = QStringLiteral("[Desktop Entry]\nType=Application\nName=Velto test client %1\n"
                                                "Exec=%2\nNoDisplay=true\nX-KDE-Wayland-Interfaces=%3\n")
                                     .arg(entry)
                                     .arg(quotedExec(it.key()), it.value().join(QLatin1Char(',')));
            if (!writeFile(desktopFile, text))
                return {};
        }
        env.insert(QStringLiteral("KWIN_SCREENSHOT_NO_PERMISSION_CHECKS"), QStringLiteral("1"));
        env.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("kwin_scripting.debug=true"));
        m_display = QStringLiteral("wayland-1");
        return {binary,
                QStringLiteral("--virtual"),
                QStringLiteral("--width"),
                QString::number(m_outputs.first().width()),
                QStringLiteral("--height"),
                QString::number(m_outputs.first().height()),
                QStringLiteral("--output-count"),
                QString::number(m_outputs.size()),
                QStringLiteral("--socket"),
                m_display,
                QStringLiteral("--no-lockscreen"),
                QStringLiteral("--no-global-shortcuts")};
    }

    QStringList gnomeCommand(const Options& options, QProcessEnvironment& env)
    {
        // Settings from a key file, so the extensions are enabled before the shell reads them.
        QStringList uuids;
        for (const QString& folder : options.gnomeExtensions) {
            const QString uuid = QFileInfo(folder).fileName();
            const QString target = m_base->filePath(QStringLiteral("home/.local/share/gnome-shell/extensions/") + uuid);
            QDir().mkpath(target);
            for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files)) {
                if (!QFile::copy(file.filePath(), target + QLatin1Char('/') + file.fileName()))
                    return {};
            }
            uuids << QLatin1Char('\'') + uuid + QLatin1Char('\'');
        }
        if (!writeFile(
                m_base->filePath(QStringLiteral("home/.config/glib-2.0/settings/keyfile")),
                QStringLiteral("[org/gnome/shell]\nenabled-extensions=[%1]\n").arg(uuids.join(QLatin1Char(',')))))
            return {};
        env.insert(QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("keyfile"));
        // The shell asks logind about seats when /run/systemd/seats exists; on machines where it does but no
        // logind runs, the shell starts in a mount namespace where that folder is empty. Its system bus is a
        // private one too.
        QString systemBus;
        if (!startDaemon(QStringLiteral("system"), m_systemBus, &systemBus))
            return {};
        env.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), systemBus);
        env.insert(QStringLiteral("XDG_SESSION_TYPE"), QStringLiteral("wayland"));
        m_display = QStringLiteral("wayland-1");
        QString shell = QStringLiteral("exec gnome-shell --headless --wayland --no-x11 --sm-disable --unsafe-mode "
                                       "--wayland-display=") +
                        m_display;
        for (const QRect& output : std::as_const(m_outputs))
            shell += QStringLiteral(" --virtual-monitor %1x%2").arg(output.width()).arg(output.height());
        return {QStandardPaths::findExecutable(QStringLiteral("unshare")), QStringLiteral("-m"), QStringLiteral("sh"),
                QStringLiteral("-c"), QStringLiteral("mount -t tmpfs tmpfs /run/systemd 2>/dev/null; ") + shell};
    }

    // A path as one word of Exec=, quoted as KWin splits it (it leaves a backslash before $ or ` in place), then
    // escaped as a desktop-file string.
    static QString quotedExec(QString path)
    {
        path.replace(QLatin1Char('\\'), QStringLiteral("\\\\")).replace(QLatin1Char('"'), QStringLiteral("\\\""));
        return QLatin1Char('"') + path.replace(QLatin1Char('\\'), QStringLiteral("\\\\")) + QLatin1Char('"');
    }

    // Its own process group, so stopping it also ends what it spawned (swaybar, Weston's shell client).
    static std::unique_ptr<QProcess> startGroup(const QStringList& command, const QProcessEnvironment& env,
                                                const QString& logFile)
    {
        auto process = std::make_unique<QProcess>();
        process->setChildProcessModifier([] { ::setpgid(0, 0); });
        process->setProcessEnvironment(env);
        process->setProcessChannelMode(QProcess::MergedChannels);
        process->setStandardOutputFile(logFile);
        process->setStandardInputFile(QProcess::nullDevice());
        process->start(command.first(), command.mid(1));
        if (!process->waitForStarted(3000))
            return nullptr;
        return process;
    }

    static void stopGroup(std::unique_ptr<QProcess>& process)
    {
        if (!process)
            return;
        const pid_t group = pid_t(process->processId());
        if (process->state() != QProcess::NotRunning) {
            ::kill(-group, SIGTERM);
            if (!process->waitForFinished(3000)) {
                ::kill(-group, SIGKILL);
                process->waitForFinished();
            }
        }
        if (group > 0)
            ::kill(-group, SIGKILL); // whatever outlived the leader
        process.reset();
    }

    // Sway names its sockets itself; they are the only ones in its runtime directory.
    void findSwaySockets()
    {
        const QDir runtime(m_base->filePath(QStringLiteral("runtime")));
        for (const QFileInfo& entry : runtime.entryInfoList(QDir::System | QDir::Files)) {
            const QString name = entry.fileName();
            if (name.startsWith(QStringLiteral("wayland-")) && !name.endsWith(QStringLiteral(".lock")))
                m_display = name;
            else if (name.startsWith(QStringLiteral("sway-ipc.")))
                m_swaySocket = entry.filePath();
        }
        if (!m_display.isEmpty() && runsAsNobody() && !QFileInfo(socketPath()).isSymLink())
            QFile::link(runtime.filePath(m_display), socketPath());
    }

    [[nodiscard]] bool busNameOwned(const QString& name) const
    {
        return bus().interface() && bus().interface()->isServiceRegistered(name).value();
    }

    // Sway's outputs are configured once it reports them at the sizes and places asked for.
    [[nodiscard]] bool swayOutputsReady() const
    {
        const QJsonArray outputs = swayMessage(QStringLiteral("get_outputs")).array();
        if (outputs.size() != m_outputs.size())
            return false;
        for (int i = 0; i < outputs.size(); ++i) {
            const QJsonObject output = outputs.at(i).toObject();
            const QJsonObject rect = output.value(QStringLiteral("rect")).toObject();
            const QRect actual(rect.value(QStringLiteral("x")).toInt(), rect.value(QStringLiteral("y")).toInt(),
                               rect.value(QStringLiteral("width")).toInt(),
                               rect.value(QStringLiteral("height")).toInt());
            if (!output.value(QStringLiteral("active")).toBool() || actual != m_outputs.at(i))
                return false;
        }
        return true;
    }

    // Every global in wayland-info's order, outputs once each; empty when no client gets through.
    [[nodiscard]] QList<QPair<QString, int>> announcedGlobals() const
    {
        QByteArray output;
        QList<QPair<QString, int>> result;
        // Quiet: while the compositor starts, refused connections are expected.
        if (!runClient(QStringLiteral("wayland-info"), {}, &output, 3000, QProcess::SeparateChannels))
            return result;
        static const QRegularExpression line(QStringLiteral("^interface: '(\\w+)',\\s+version:\\s+(\\d+)"),
                                             QRegularExpression::MultilineOption);
        for (auto it = line.globalMatch(QString::fromUtf8(output)); it.hasNext();) {
            const auto match = it.next();
            result.append({match.captured(1), match.captured(2).toInt()});
        }
        return result;
    }

    // Up once a client gets a shell and every output, and the compositor's own services answer: sway's IPC
    // and bar, KWin's D-Bus interface. Before that, tests would race the compositor's start-up.
    bool waitUntilReady(const Options& options, const QDeadlineTimer& deadline)
    {
        while (!deadline.hasExpired() && isRunning()) {
            if (m_kind == Kind::Sway)
                findSwaySockets();
            if (!m_display.isEmpty() && QFileInfo::exists(socketPath())) {
                const QList<QPair<QString, int>> announced = announcedGlobals();
                const auto count = [&announced](const char* name) {
                    return std::count_if(announced.begin(), announced.end(),
                                         [name](const auto& global) { return global.first == QLatin1String(name); });
                };
                if (count("xdg_wm_base") == 1 && count("wl_output") == m_outputs.size() && ready(options))
                    return true;
            }
            QThread::msleep(20);
        }
        return false;
    }

    bool ready(const Options& options) const
    {
        switch (m_kind) {
        case Kind::Sway:
            return !m_swaySocket.isEmpty() && swayOutputsReady() &&
                   (!options.swayBar || busNameOwned(QStringLiteral("org.kde.StatusNotifierWatcher")));
        case Kind::KWin:
            return busNameOwned(QStringLiteral("org.kde.KWin"));
        case Kind::Weston:
            return true;
        case Kind::Gnome:
            // It starts in the overview, which would hide every window a test opens.
            return busNameOwned(QStringLiteral("org.gnome.Shell")) &&
                   gnomeEval(QStringLiteral("Main.overview.hide(); Main.layoutManager._startingUp === false")) ==
                       QStringLiteral("true");
        }
        return false;
    }

    Kind m_kind = Kind::Sway;
    std::unique_ptr<QTemporaryDir> m_base;
    std::unique_ptr<QProcess> m_bus;
    std::unique_ptr<QProcess> m_systemBus;
    std::unique_ptr<QProcess> m_compositor;
    QStringList m_command;
    QProcessEnvironment m_compositorEnvironment;
    Options m_options;
    std::vector<std::unique_ptr<QProcess>> m_windows;
    QString m_busAddress;
    QString m_busConnectionName;
    QString m_display;
    QString m_swaySocket;
    QList<QRect> m_outputs;
    int m_scripts = 0;
};
