#include "ControlClient.h"

#include "CommandLine.h"
#include "CommandLineTexts.h"
#include "ControlTarget.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QDBusReply>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

namespace velto {
namespace {

using Command = CommandLine::Command;

QString notRunningText()
{
    return u"velto: "_s + CommandLineTexts::tr("Velto is not running");
}

} // namespace

ControlClient::ControlClient(QDBusConnection bus, int timeoutMs)
    : m_bus(std::move(bus))
    , m_timeoutMs(timeoutMs)
{}

QDBusMessage ControlClient::call(const QString& method, const QVariantList& arguments, int timeoutMs)
{
    QDBusMessage message = QDBusMessage::createMethodCall(ControlBus::serviceName, ControlBus::objectPath,
                                                          ControlBus::interfaceName, method);
    message.setArguments(arguments);
    // Asking a stopped Velto for its status must never start one.
    message.setAutoStartService(false);
    return m_bus.call(message, QDBus::BlockWithGui, timeoutMs > 0 ? timeoutMs : m_timeoutMs);
}

bool ControlClient::isInstanceRunning()
{
    QDBusMessage question = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                                           u"org.freedesktop.DBus"_s, u"NameHasOwner"_s);
    question << ControlBus::serviceName; // name
    const QDBusReply<bool> reply = m_bus.call(question, QDBus::Block, m_timeoutMs);
    return reply.isValid() && reply.value();
}

int ControlClient::reportFailure(const QDBusMessage& reply, QTextStream& err)
{
    const QDBusError error(reply);
    switch (error.type()) {
    case QDBusError::ServiceUnknown:
        err << notRunningText() << '\n';
        break;
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        if (isInstanceRunning())
            //: %1: a number of seconds
            err << u"velto: "_s
                << CommandLineTexts::tr("Velto did not answer within %1 seconds").arg(m_timeoutMs / 1000.0) << '\n';
        else
            err << notRunningText() << '\n';
        break;
    default:
        if (error.name() == u"org.freedesktop.DBus.Error.NameHasNoOwner"_s)
            err << notRunningText() << '\n';
        else
            err << u"velto: "_s << error.message() << '\n';
        break;
    }
    err.flush();
    return ExitCode::failure;
}

int ControlClient::run(const CommandLine& commandLine, QTextStream& out, QTextStream& err)
{
    if (!m_bus.isConnected()) {
        err << u"velto: "_s << CommandLineTexts::tr("no session bus, so no running Velto can be reached") << '\n';
        err.flush();
        return ExitCode::failure;
    }

    QDBusMessage reply;
    switch (commandLine.command) {
    case Command::Status:
        reply = call(u"status"_s);
        if (reply.type() == QDBusMessage::ReplyMessage) {
            const ControlStatus status = ControlStatus::fromVariantMap(QDBusReply<QVariantMap>(reply).value());
            out << (commandLine.json ? statusJson(status) : statusText(status));
            out.flush();
        }
        break;
    case Command::TakeBreak:
        reply = call(commandLine.longBreak ? u"startLongBreak"_s : u"takeBreakNow"_s);
        break;
    case Command::Pause:
        reply = call(u"pauseFor"_s, {double(commandLine.pauseMinutes) * 60.0});
        break;
    case Command::Resume:
        reply = call(u"resume"_s);
        break;
    case Command::Skip:
        reply = call(u"skipUpcomingBreak"_s);
        break;
    case Command::Enable:
    case Command::Disable:
        reply = call(u"setRemindersEnabled"_s, {commandLine.command == Command::Enable});
        break;
    case Command::Settings:
        reply = call(u"openSettings"_s);
        if (reply.type() == QDBusMessage::ReplyMessage && !QDBusReply<bool>(reply).value()) {
            err << u"velto: "_s << CommandLineTexts::tr("the settings window cannot be shown in this session") << '\n';
            err.flush();
            return ExitCode::failure;
        }
        break;
    case Command::CheckUpdates:
        reply = call(u"checkForUpdates"_s, {}, std::max(m_timeoutMs, ControlBus::updateCheckTimeoutMs));
        if (reply.type() == QDBusMessage::ReplyMessage) {
            out << QDBusReply<QString>(reply).value() << '\n';
            out.flush();
        }
        break;
    case Command::Quit:
        reply = call(u"quit"_s);
        // An instance that went away before its answer got out has still done what was asked.
        if (reply.type() == QDBusMessage::ErrorMessage && QDBusError(reply).type() == QDBusError::NoReply &&
            !isInstanceRunning())
            return ExitCode::success;
        break;
    default:
        err << u"velto: "_s << CommandLineTexts::tr("nothing to send for this command") << '\n';
        err.flush();
        return ExitCode::usage;
    }

    if (reply.type() != QDBusMessage::ReplyMessage)
        return reportFailure(reply, err);
    return ExitCode::success;
}

int ControlClient::handOver(QTextStream& out, QTextStream& err)
{
    const QDBusMessage reply = call(u"openSettings"_s);
    if (reply.type() != QDBusMessage::ReplyMessage)
        return reportFailure(reply, err);
    if (QDBusReply<bool>(reply).value())
        out << CommandLineTexts::tr("Velto is already running; its settings window is open.") << '\n';
    else
        out << CommandLineTexts::tr("Velto is already running.") << '\n';
    out.flush();
    return ExitCode::success;
}

QString ControlClient::statusText(const ControlStatus& status)
{
    // The state and the pause reason are Velto's own words for scripts, the same in every language.
    const QList<std::pair<QString, QString>> rows{
        {CommandLineTexts::tr("Time left:"), status.timeText},
        {CommandLineTexts::tr("State:"), status.state},
        {CommandLineTexts::tr("Pause reason:"),
         status.pauseReason.isEmpty() ? CommandLineTexts::tr("none") : status.pauseReason},
        {CommandLineTexts::tr("Breaks today:"), QString::number(status.breaksToday)},
        {CommandLineTexts::tr("Reminders:"), status.enabled ? CommandLineTexts::tr("on") : CommandLineTexts::tr("off")},
    };
    qsizetype width = 0;
    for (const auto& [label, value] : rows)
        width = std::max(width, label.size());
    // An older Velto sends the status line only once.
    QString text = (status.localStatusLine.isEmpty() ? status.statusLine : status.localStatusLine) + u'\n';
    for (const auto& [label, value] : rows)
        text += label.leftJustified(width + 1) + value + u'\n';
    return text;
}

QString ControlClient::statusJson(const ControlStatus& status)
{
    const QJsonObject object{
        {u"statusLine"_s, status.statusLine},
        {u"timeText"_s, status.timeText},
        {u"state"_s, status.state},
        {u"pauseReason"_s, status.pauseReason.isEmpty() ? QJsonValue(QJsonValue::Null) : status.pauseReason},
        {u"breaksToday"_s, status.breaksToday},
        {u"enabled"_s, status.enabled},
        {u"detection"_s, QJsonObject::fromVariantMap(status.detection)},
    };
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + u'\n';
}

} // namespace velto
