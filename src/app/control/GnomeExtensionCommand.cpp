#include "GnomeExtensionCommand.h"

#include "CommandLine.h"
#include "CommandLineTexts.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>
#include <QTextStream>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

using State = GnomeExtensionState;

} // namespace

GnomeExtensionCommand::GnomeExtensionCommand(GnomeExtensionControlling& extension, int timeoutMs)
    : m_extension(extension)
    , m_timeoutMs(timeoutMs)
{}

std::optional<GnomeExtensionFacts> GnomeExtensionCommand::gather()
{
    QEventLoop loop;
    bool gathered = false;
    const auto connection = QObject::connect(&m_extension, &GnomeExtensionControlling::factsGathered, &loop, [&] {
        gathered = true;
        loop.quit();
    });
    QTimer::singleShot(m_timeoutMs, &loop, &QEventLoop::quit);
    m_extension.refresh();
    if (!gathered)
        loop.exec();
    QObject::disconnect(connection);
    return gathered ? m_extension.facts() : std::nullopt;
}

std::optional<QString> GnomeExtensionCommand::enable()
{
    QEventLoop loop;
    // Shared with the callback, which may come after this call gave up waiting.
    auto result = std::make_shared<std::optional<QString>>();
    QPointer<QEventLoop> guard(&loop);
    QTimer::singleShot(m_timeoutMs, &loop, &QEventLoop::quit);
    m_extension.enable([result, guard](const QString& error) {
        *result = error;
        if (guard)
            guard->quit();
    });
    if (!result->has_value())
        loop.exec();
    return *result;
}

int GnomeExtensionCommand::run(const CommandLine& commandLine, QTextStream& out, QTextStream& err)
{
    const auto fail = [&err](const QString& message) {
        err << u"velto: "_s << message << '\n';
        err.flush();
        return ExitCode::failure;
    };

    std::optional<GnomeExtensionFacts> facts = gather();
    if (!facts)
        return fail(CommandLineTexts::tr("GNOME Shell did not answer in time"));
    State state = gnomeExtensionState(*facts);
    if (state == State::NotGnome) {
        if (commandLine.json) {
            out << statusJson(state, false);
            out.flush();
        }
        return fail(CommandLineTexts::tr("there is no GNOME Shell in this session"));
    }

    if (commandLine.command == CommandLine::Command::GnomeExtensionEnable) {
        if (state == State::NotInstalled)
            return fail(QCoreApplication::translate(
                "CommandLine", "Velto's GNOME Shell extension is not installed (it comes with Velto's package)"));
        if (state == State::NotEnabled) {
            const std::optional<QString> error = enable();
            if (!error)
                return fail(CommandLineTexts::tr("GNOME Shell did not answer in time"));
            if (!error->isEmpty())
                return fail(CommandLineTexts::tr("the GNOME Shell extension could not be enabled: ") + *error);
            facts = m_extension.facts();
            state = facts ? gnomeExtensionState(*facts) : State::NotGnome;
        }
    }

    const bool enableable = facts && gnomeExtensionEnabling(*facts).possible();
    if (commandLine.json) {
        out << statusJson(state, enableable);
    } else {
        out << gnomeExtensionStateText(state) << '\n';
        if (enableable)
            out << CommandLineTexts::tr("Enable it with: velto gnome-extension enable") << '\n';
    }
    out.flush();

    switch (state) {
    case State::Active:
    case State::EnabledNextLogin:
        return ExitCode::success;
    case State::NotEnabled:
        // Asked to enable, yet still off: the settings did not take.
        return commandLine.command == CommandLine::Command::GnomeExtensionEnable
                   ? fail(CommandLineTexts::tr("GNOME Shell still has the extension off"))
                   : ExitCode::success;
    case State::Failed:
        return commandLine.command == CommandLine::Command::GnomeExtensionEnable
                   ? fail(QCoreApplication::translate("CommandLine",
                                                      "GNOME Shell could not start the extension; its log may say why"))
                   : ExitCode::success;
    case State::NotInstalled:
        return ExitCode::failure;
    case State::NotGnome:
        break;
    }
    return ExitCode::failure;
}

QString GnomeExtensionCommand::statusJson(GnomeExtensionState state, bool canEnable)
{
    const QJsonObject object{
        {u"state"_s, gnomeExtensionStateName(state)},
        {u"text"_s, gnomeExtensionStateText(state)},
        {u"canEnable"_s, canEnable},
    };
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + u'\n';
}

} // namespace velto
