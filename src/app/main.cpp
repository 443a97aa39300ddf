#include "AppDelegate.h"
#include "CommandLine.h"
#include "ControlBus.h"
#include "ControlClient.h"
#include "ControlService.h"
#include "ControlTarget.h"
#include "VeltoVersion.h"
#include "scheduling/BreakManager.h"
#include "settings/SettingsManager.h"

#include <QApplication>
#include <QDateTime>
#include <QMetaEnum>
#include <QTextStream>

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

template <typename Enum>
QString rawName(Enum value)
{
    QString name = QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(int(value)));
    if (!name.isEmpty())
        name[0] = name[0].toLower();
    return name;
}

QString menuTime(double seconds)
{
    const qint64 whole = std::max<qint64>(0, qint64(seconds));
    return QString::asprintf("%02lld:%02lld", whole / 60, whole % 60);
}

// The command line's view of the delegate's components, until AppDelegate answers for itself.
class DelegateControl final : public velto::ControlTarget {
public:
    explicit DelegateControl(velto::AppDelegate& delegate)
        : m_delegate(delegate)
    {}

    [[nodiscard]] velto::ControlStatus controlStatus() const override
    {
        using velto::BreakState;
        using velto::PauseKind;
        const velto::BreakManager& scheduler = *m_delegate.breakManager();
        velto::ControlStatus status;
        status.state = rawName(scheduler.state());
        status.breaksToday = int(scheduler.dailyBreakCount());
        status.enabled = m_delegate.settingsManager()->isEnabled();
        QString text;
        if (const auto reason = scheduler.pauseReason()) {
            status.pauseReason = rawName(reason->kind);
            status.timeText = menuTime(scheduler.timeRemaining());
            switch (reason->kind) {
            case PauseKind::ManuallyPaused:
                text = reason->displayText(QDateTime::currentDateTime());
                break;
            case PauseKind::OutsideOfficeHours:
                text = u"Outside office hours"_s;
                break;
            case PauseKind::AppDisabled:
                status.timeText = u"—"_s;
                text = u"Breaks disabled"_s;
                break;
            case PauseKind::SmartActivity:
                text = u"Smart Pause active"_s;
                break;
            }
        } else {
            switch (scheduler.state()) {
            case BreakState::Idle:
                status.timeText = u"—"_s;
                text = u"Ready"_s;
                break;
            case BreakState::Working:
                status.timeText = menuTime(scheduler.timeRemaining());
                text = u"Until next break"_s;
                break;
            case BreakState::OnBreak:
                status.timeText = menuTime(scheduler.breakTimeRemaining());
                text = u"Break in progress"_s;
                break;
            case BreakState::Paused:
                status.timeText = menuTime(scheduler.timeRemaining());
                text = u"Paused"_s;
                break;
            }
        }
        status.statusLine = status.timeText == u"—"_s ? text : status.timeText + u"  "_s + text;
        return status;
    }
    void takeBreakNow() override { m_delegate.breakManager()->takeBreakNow(); }
    void startLongBreak() override { m_delegate.breakManager()->startLongBreak(); }
    void pauseFor(double seconds) override { m_delegate.breakManager()->pauseFor(seconds); }
    void resume() override { m_delegate.breakManager()->resume(); }
    void skipUpcomingBreak() override { m_delegate.breakManager()->skipUpcomingBreak(); }
    void setRemindersEnabled(bool enabled) override { m_delegate.settingsManager()->setIsEnabled(enabled); }
    bool openSettings() override { return false; }
    void quit() override { QCoreApplication::quit(); }
    void triggerTestPreBreakNotification() override {}

private:
    velto::AppDelegate& m_delegate;
};

// A command for the running instance: no GUI, no display needed.
int runClient(int argc, char* argv[], const velto::CommandLine& commandLine)
{
    setApplicationIdentity();
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    return velto::ControlClient(QDBusConnection::sessionBus()).run(commandLine, out, err);
}

int runApplication(int argc, char* argv[])
{
    const bool headless = choosePlatform();
    setApplicationIdentity();
    QApplication::setApplicationDisplayName(u"Velto"_s);
    QApplication::setDesktopFileName(u"com.velto.app"_s);
    QApplication application(argc, argv);
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
        std::fputs("velto: no session bus; running, but cannot make sure no other Velto runs\n", stderr);
        break;
    }
    if (headless)
        std::fputs("velto: no display found; running without a tray icon\n", stderr);

    velto::AppDelegate delegate;
    DelegateControl target(delegate);
    control.setTarget(&target);
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
    const velto::CommandLine commandLine = velto::CommandLine::parse(arguments);

    using Command = velto::CommandLine::Command;
    switch (commandLine.command) {
    case Command::Run:
        return runApplication(argc, argv);
    case Command::Help:
        std::fputs(qPrintable(velto::CommandLine::usage()), stdout);
        return velto::ExitCode::success;
    case Command::Version:
        std::printf("velto %s\n", velto::versionString);
        return velto::ExitCode::success;
    case Command::Invalid:
        std::fprintf(stderr, "velto: %s\n\n%s", qPrintable(commandLine.error), qPrintable(velto::CommandLine::usage()));
        return velto::ExitCode::usage;
    default:
        return runClient(argc, argv, commandLine);
    }
}
