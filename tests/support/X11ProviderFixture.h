#pragma once

// What the X11 provider tests share: a private desktop (Xvfb with openbox), two installed applications in a
// desktop-file folder of their own, the providers' shared pieces, and test windows that close after each case.
#include "XvfbDesktop.h"
#include "detection/AppIdentityResolver.h"
#include "detection/DesktopEntryIndex.h"
#include "detection/SystemX11Providers.h"

#include <QDir>
#include <QFile>
#include <QList>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>
#include <memory>
#include <optional>

inline bool writeTestFile(const QString& path, const QByteArray& contents)
{
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return false;
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size();
}

inline std::optional<velto::AppSnapshot> appWithPid(const QList<velto::AppSnapshot>& apps, qint64 pid)
{
    for (const velto::AppSnapshot& app : apps) {
        if (app.processIdentifier == pid)
            return app;
    }
    return std::nullopt;
}

inline std::optional<velto::WindowDescriptor> windowOf(const QList<velto::WindowDescriptor>& windows, qint64 pid)
{
    for (const velto::WindowDescriptor& window : windows) {
        if (window.ownerPID == pid)
            return window;
    }
    return std::nullopt;
}

// The base of each X11 provider test: one desktop for the whole test, the test windows closed after each case.
class X11ProviderFixture : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!XvfbDesktop::isAvailable() || QStandardPaths::findExecutable(QStringLiteral("xdotool")).isEmpty())
            QSKIP("Xvfb, openbox or xdotool is not installed");
        QVERIFY(startDesktop());
    }
    void cleanupTestCase() { m_desktop.stop(); }
    void cleanup() { closeWindows(); }

protected:
    bool startDesktop()
    {
        if (!m_desktop.start() || !m_dataDir.isValid())
            return false;
        const QString apps = m_dataDir.filePath(QStringLiteral("applications"));
        if (!writeTestFile(apps + QStringLiteral("/org.example.Editor.desktop"),
                           "[Desktop Entry]\nType=Application\nName=Example Editor\nExec=example-editor %F\n"
                           "StartupWMClass=ExampleEditor\nCategories=Development;IDE;\n") ||
            !writeTestFile(apps + QStringLiteral("/org.example.Shooter.desktop"),
                           "[Desktop Entry]\nType=Application\nName=Shooter\nExec=shooter\nStartupWMClass=Shooter\n"
                           "Categories=Game;ActionGame;\n"))
            return false;
        m_entries = std::make_shared<velto::DesktopEntryIndex>(QStringList{apps});
        m_link = std::make_shared<velto::X11Link>(m_desktop.display().toLocal8Bit());
        m_identities = std::make_shared<velto::AppIdentityResolver>(m_entries, velto::ProcessTable());
        m_memo = std::make_shared<velto::WindowClassMemo>();
        return true;
    }

    void closeWindows()
    {
        for (QProcess* window : std::as_const(m_opened))
            m_desktop.closeWindow(window);
        m_opened.clear();
    }

    QProcess* open(const QStringList& arguments, quint32* window = nullptr)
    {
        QProcess* process = m_desktop.openWindow(QStringLiteral(VELTO_X11_TEST_WINDOW), arguments, window);
        if (process)
            m_opened.append(process);
        return process;
    }

    bool xdotool(const QStringList& arguments) { return m_desktop.run(QStringLiteral("xdotool"), arguments); }

    XvfbDesktop m_desktop;
    QTemporaryDir m_dataDir;
    std::shared_ptr<velto::DesktopEntryIndex> m_entries;
    std::shared_ptr<velto::X11Link> m_link;
    std::shared_ptr<velto::AppIdentityResolver> m_identities;
    std::shared_ptr<velto::WindowClassMemo> m_memo;
    QList<QProcess*> m_opened;
};
