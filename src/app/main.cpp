#include "AppDelegate.h"
#include "CommandLine.h"
#include "ControlBus.h"
#include "ControlClient.h"
#include "ControlService.h"
#include "ControlTarget.h"
#include "GnomeExtensionCommand.h"
#include "HistoryCommand.h"
#include "MemoryPolicy.h"
#include "QuitOnSignals.h"
#include "SystemGnomeExtension.h"
#include "Translations.h"
#include "VeltoVersion.h"
#include "history/SqliteHistoryStore.h"
#include "wayland/WaylandLink.h"

#include <QApplication>
#include <QIcon>
#include <QTextStream>

#include <csignal>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

// Without any display Velto still keeps its schedule; Qt would otherwise abort at start. With a display that
// turns out unreachable, Qt tries the offscreen platform after the usual one. Returns whether there is no
// display at all, which is said only once this process turns out to be the one that runs.
bool choosePlatform()
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return false;
    if (!qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return true;
    }
    const bool wayland =
        qEnvironmentVariableIsSet("WAYLAND_DISPLAY") && qEnvironmentVariable("XDG_SESSION_TYPE") == u"wayland"_s;
    qputenv("QT_QPA_PLATFORM", wayland ? "wayland;xcb;offscreen" : "xcb;offscreen");
    return false;
}

void setApplicationIdentity()
{
    QCoreApplication::setApplicationName(u"velto"_s);
    QCoreApplication::setApplicationVersion(QString::fromLatin1(velto::versionString));
}

void printStartUpNotice(const QString& text)
{
    std::fprintf(stderr, "velto: %s\n", qPrintable(text));
}

// A command for the running instance: no GUI, no display needed.
int runClient(const velto::CommandLine& commandLine)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    return velto::ControlClient(QDBusConnection::sessionBus()).run(commandLine, out, err);
}

// A command for Velto's GNOME Shell extension: GNOME Shell and its settings answer, no running Velto is needed.
int runGnomeExtensionCommand(const velto::CommandLine& commandLine)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    // Gone before this returns, keeping any change it wrote.
    velto::SystemGnomeExtension extension(QDBusConnection::sessionBus());
    return velto::GnomeExtensionCommand(extension).run(commandLine, out, err);
}

// The history file, read as it is: with or without a running Velto, never changed.
int runHistoryCommand(const velto::CommandLine& commandLine)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    const velto::SqliteHistoryStore store(velto::SqliteHistoryStore::defaultPath(),
                                          velto::SqliteHistoryStore::Access::ReadOnly);
    return velto::HistoryCommand(store, QDate::currentDate()).run(commandLine, out, err);
}

int runApplication(int argc, char* argv[])
{
    velto::useOneHeapForAllThreads();
    const bool headless = choosePlatform();
    // Qt then gives a window marked to bypass the window manager no shell role of its own, so the break screen
    // and the card can take a layer of the compositor's instead (where it offers layers; ordinary windows
    // elsewhere). Read once, as Qt's Wayland connection is made.
    if (!qEnvironmentVariableIsSet("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT"))
        qputenv("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1");
    // Before its first window Qt asks whether it may draw title bars itself, and to answer loads the desktop's
    // OpenGL stack (Mesa and LLVM, some 50 MB that stay mapped), which windows drawn in software never use.
    // Where the compositor draws title bars itself, Qt's are never drawn anyway: say so and skip the question.
    if (qEnvironmentVariable("QT_QPA_PLATFORM").startsWith(u"wayland"_s) &&
        !qEnvironmentVariableIsSet("QT_WAYLAND_DISABLE_WINDOWDECORATION") &&
        velto::WaylandLink::announcedInterfaces().contains(u"zxdg_decoration_manager_v1"_s))
        qputenv("QT_WAYLAND_DISABLE_WINDOWDECORATION", "1");
    setApplicationIdentity();
    QApplication::setApplicationDisplayName(u"Velto"_s);
    QApplication::setDesktopFileName(u"com.velto.app"_s);
    QApplication application(argc, argv);
    velto::installTranslations(application);
    // The card, the settings window and the About pane show this as Velto's own icon.
    QApplication::setWindowIcon(QIcon(u":/velto/icons/VeltoLogo.svg"_s));
    // Closing a settings window or a break overlay must never end the process.
    QApplication::setQuitOnLastWindowClosed(false);

    // The name is claimed before anything is built, so a second start never creates a second scheduler.
    velto::ControlService control;
    switch (control.registerOnSessionBus()) {
    case velto::ControlService::Registration::Owner:
        break;
    case velto::ControlService::Registration::AnotherInstance: {
        QTextStream out(stdout);
        QTextStream err(stderr);
        return velto::ControlClient(QDBusConnection::sessionBus()).handOver(out, err);
    }
    case velto::ControlService::Registration::NoBus:
        printStartUpNotice(
            //: Said on standard error at start, after "velto: ".
            QCoreApplication::translate("StartUp",
                                        "no session bus; running, but cannot make sure no other Velto runs"));
        break;
    }
    if (headless)
        printStartUpNotice(
            //: Said on standard error at start, after "velto: ".
            QCoreApplication::translate("StartUp", "no display found; running without a tray icon"));

    velto::AppDelegate delegate(velto::AppServices::system());
    // Logging out stops Velto with a signal; it ends as after "Quit Velto", its history written.
    const velto::QuitOnSignals quitOnSignals({SIGTERM, SIGINT, SIGHUP});
    control.setTarget(&delegate);
    delegate.applicationDidFinishLaunching();
    const int status = QApplication::exec();
    control.setTarget(nullptr);
    return status;
}

} // namespace

int main(int argc, char* argv[])
{
    // Registering a type before any bus use makes Qt's type registry outlive the bus thread, which may still be
    // dispatching (the bus's greeting) while the process exits; in the other order it warns of unknown types.
    qRegisterMetaType<velto::ControlStatus>();
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    using Command = velto::CommandLine::Command;
    if (velto::CommandLine::parse(arguments).command == Command::Run)
        return runApplication(argc, argv);

    // The rest needs no display; parsed again once the user's language is in, so mistakes are told in it.
    setApplicationIdentity();
    QCoreApplication application(argc, argv);
    velto::installTranslations(application);
    const velto::CommandLine commandLine = velto::CommandLine::parse(arguments);
    switch (commandLine.command) {
    case Command::Run:
        return velto::ExitCode::failure; // decided above
    case Command::Help:
        std::fputs(qPrintable(velto::CommandLine::usage()), stdout);
        return velto::ExitCode::success;
    case Command::Version:
        std::printf("velto %s\n", velto::versionString);
        return velto::ExitCode::success;
    case Command::Invalid:
        std::fprintf(stderr, "velto: %s\n\n%s", qPrintable(commandLine.error), qPrintable(velto::CommandLine::usage()));
        return velto::ExitCode::usage;
    case Command::GnomeExtensionStatus:
    case Command::GnomeExtensionEnable:
        return runGnomeExtensionCommand(commandLine);
    case Command::History:
        return runHistoryCommand(commandLine);
    default:
        return runClient(commandLine);
    }
}
