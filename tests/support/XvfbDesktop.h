#pragma once

#include "TestWindowProcess.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QString>
#include <QThread>

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>
#include <xcb/xcb.h>

// A private X server (Xvfb) with, when asked, the openbox window manager, so EWMH client lists and the
// active window exist as on a desktop. Starts on a free display number, stops everything it started.
class XvfbDesktop final {
public:
    ~XvfbDesktop() { stop(); }

    [[nodiscard]] static bool isAvailable(bool withWindowManager = true)
    {
        return !QStandardPaths::findExecutable(QStringLiteral("Xvfb")).isEmpty() &&
               (!withWindowManager || !QStandardPaths::findExecutable(QStringLiteral("openbox")).isEmpty());
    }

    bool start(bool withWindowManager = true, const QString& screen = QStringLiteral("1920x1080x24"))
    {
        // A random number in a high range, taken only when no server answers there: clients try the abstract
        // socket first, which other sandboxes on the same host may share, so a low number can lead to someone
        // else's server.
        const QString xvfb = QStandardPaths::findExecutable(QStringLiteral("Xvfb"));
        for (int attempt = 0; attempt < 20 && m_display.isEmpty(); ++attempt) {
            const int number = 300 + int(QRandomGenerator::global()->bounded(600));
            const QString display = QStringLiteral(":%1").arg(number);
            if (QFile::exists(QStringLiteral("/tmp/.X%1-lock").arg(number)) || answers(display.toLocal8Bit()))
                continue;
            auto server = std::make_unique<QProcess>();
            server->setProcessChannelMode(QProcess::ForwardedErrorChannel);
            server->start(xvfb, {display, QStringLiteral("-noreset"), QStringLiteral("-nolisten"),
                                 QStringLiteral("tcp"), QStringLiteral("-screen"), QStringLiteral("0"), screen});
            if (!server->waitForStarted(3000))
                continue;
            if (!waitForServer(display.toLocal8Bit(), *server)) {
                server->kill();
                server->waitForFinished();
                continue;
            }
            m_server = std::move(server);
            m_display = display;
        }
        if (m_display.isEmpty())
            return false;
        if (withWindowManager) {
            m_windowManager = std::make_unique<QProcess>();
            m_windowManager->setProcessEnvironment(environment());
            m_windowManager->setProcessChannelMode(QProcess::ForwardedErrorChannel);
            m_windowManager->setStandardOutputFile(QProcess::nullDevice());
            m_windowManager->start(QStandardPaths::findExecutable(QStringLiteral("openbox")),
                                   {QStringLiteral("--sm-disable")});
            if (!m_windowManager->waitForStarted(3000) || !waitForWindowManager())
                return false;
        }
        return true;
    }

    void stop()
    {
        for (auto& window : m_windows) {
            window->closeWriteChannel();
            window->terminate();
            window->waitForFinished(2000);
        }
        m_windows.clear();
        for (auto* process : {m_windowManager.get(), m_server.get()}) {
            if (process && process->state() != QProcess::NotRunning) {
                process->terminate();
                if (!process->waitForFinished(3000)) {
                    process->kill();
                    process->waitForFinished();
                }
            }
        }
        m_windowManager.reset();
        m_server.reset();
        m_display.clear();
    }

    [[nodiscard]] const QString& display() const { return m_display; }

    [[nodiscard]] QProcessEnvironment environment() const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("DISPLAY"), m_display);
        return env;
    }

    // Runs an X client (xdotool, …) to its end; returns whether it succeeded.
    bool run(const QString& program, const QStringList& arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.start(QStandardPaths::findExecutable(program), arguments);
        return process.waitForFinished(10000) && process.exitStatus() == QProcess::NormalExit &&
               process.exitCode() == 0;
    }

    // Starts a test window program and waits until it reports its window ID; the process stays ours.
    QProcess* openWindow(const QString& windowProgram, const QStringList& arguments, quint32* windowId = nullptr)
    {
        QByteArray line;
        auto process = startTestWindow(windowProgram, arguments, environment(), &line);
        if (!process)
            return nullptr;
        if (windowId)
            *windowId = line.toUInt();
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
    static bool answers(const QByteArray& display)
    {
        xcb_connection_t* c = xcb_connect(display.constData(), nullptr);
        const bool up = xcb_connection_has_error(c) == 0;
        xcb_disconnect(c);
        return up;
    }

    static bool waitForServer(const QByteArray& display, const QProcess& server)
    {
        const QDeadlineTimer deadline(5000);
        while (!deadline.hasExpired() && server.state() == QProcess::Running) {
            // Our server is up once it answers and is still running (a server that lost the race exits).
            if (answers(display)) {
                QThread::msleep(50);
                return server.state() == QProcess::Running;
            }
            QThread::msleep(20);
        }
        return false;
    }

    static xcb_atom_t atom(xcb_connection_t* c, const char* name)
    {
        auto* reply = xcb_intern_atom_reply(c, xcb_intern_atom(c, 0, uint16_t(std::strlen(name)), name), nullptr);
        const xcb_atom_t result = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
        std::free(reply);
        return result;
    }

    static std::vector<xcb_window_t> windowList(xcb_connection_t* c, xcb_window_t root, xcb_atom_t property)
    {
        auto* reply =
            xcb_get_property_reply(c, xcb_get_property(c, 0, root, property, XCB_ATOM_WINDOW, 0, 4096), nullptr);
        std::vector<xcb_window_t> windows;
        if (reply) {
            const auto* data = static_cast<const xcb_window_t*>(xcb_get_property_value(reply));
            windows.assign(data, data + xcb_get_property_value_length(reply) / 4);
        }
        std::free(reply);
        return windows;
    }

    // The window manager is ready once it manages a window: announcing itself on the root window comes
    // earlier in its start-up, and windows mapped in between may be missed. So map probes until one is managed.
    bool waitForWindowManager() const
    {
        xcb_connection_t* c = xcb_connect(m_display.toLocal8Bit().constData(), nullptr);
        if (xcb_connection_has_error(c)) {
            xcb_disconnect(c);
            return false;
        }
        xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(c)).data;
        const xcb_atom_t clientList = atom(c, "_NET_CLIENT_LIST");
        bool ready = false;
        QDeadlineTimer deadline(10000);
        while (!ready && !deadline.hasExpired()) {
            const xcb_window_t probe = xcb_generate_id(c);
            xcb_create_window(c, XCB_COPY_FROM_PARENT, probe, screen->root, 0, 0, 10, 10, 0,
                              XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
            xcb_map_window(c, probe);
            xcb_flush(c);
            const QDeadlineTimer probeDeadline(1000);
            while (!ready && !probeDeadline.hasExpired()) {
                const std::vector<xcb_window_t> managed = windowList(c, screen->root, clientList);
                ready = std::find(managed.begin(), managed.end(), probe) != managed.end();
                if (!ready)
                    QThread::msleep(20);
            }
            xcb_destroy_window(c, probe);
            xcb_flush(c);
        }
        // Wait until the probe is gone from the list again, so tests start with an empty desktop.
        while (ready && !windowList(c, screen->root, clientList).empty() && !deadline.hasExpired())
            QThread::msleep(20);
        xcb_disconnect(c);
        return ready;
    }

    QString m_display;
    std::unique_ptr<QProcess> m_server;
    std::unique_ptr<QProcess> m_windowManager;
    std::vector<std::unique_ptr<QProcess>> m_windows;
};
