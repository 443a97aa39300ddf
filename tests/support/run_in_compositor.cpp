// Runs a command inside a private headless Wayland compositor and answers with its exit code, so tests whose
// Qt connects at start (the windows' tests) can run on sway or KWin as they run on Xvfb.
// Usage: run_in_compositor sway|kwin|weston|gnome [--bar] [--extension DIR] -- COMMAND [ARGUMENTS…]
// --extension installs and enables a GNOME Shell extension from that folder (GNOME Shell only).
// The command also finds SWAYSOCK (sway) and VELTO_TEST_COMPOSITOR (the compositor's name) in its environment.
#include "HeadlessCompositor.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QStringList arguments = app.arguments().mid(1);
    const qsizetype separator = arguments.indexOf(QStringLiteral("--"));
    if (arguments.isEmpty() || separator < 1 || separator == arguments.size() - 1) {
        std::fprintf(
            stderr,
            "usage: run_in_compositor sway|kwin|weston|gnome [--bar] [--extension DIR] -- COMMAND [ARGUMENTS...]\n");
        return 64;
    }
    const QString name = arguments.first();
    const HeadlessCompositor::Kind kind = name == QStringLiteral("kwin")     ? HeadlessCompositor::Kind::KWin
                                          : name == QStringLiteral("weston") ? HeadlessCompositor::Kind::Weston
                                          : name == QStringLiteral("gnome")  ? HeadlessCompositor::Kind::Gnome
                                                                             : HeadlessCompositor::Kind::Sway;
    HeadlessCompositor::Options options;
    const QStringList flags = arguments.mid(1, separator - 1);
    options.swayBar = flags.contains(QStringLiteral("--bar"));
    for (qsizetype i = flags.indexOf(QStringLiteral("--extension")); i >= 0 && i + 1 < flags.size();
         i = flags.indexOf(QStringLiteral("--extension"), i + 2))
        options.gnomeExtensions << flags.at(i + 1);
    if (!HeadlessCompositor::isAvailable(kind)) {
        std::fprintf(stderr, "run_in_compositor: %s is not installed\n", qPrintable(name));
        return 77;
    }
    HeadlessCompositor compositor;
    if (!compositor.start(kind, options))
        return 1;
    QProcessEnvironment env = compositor.environment();
    env.insert(QStringLiteral("VELTO_TEST_COMPOSITOR"), name);
    QProcess command;
    command.setProcessEnvironment(env);
    command.setProcessChannelMode(QProcess::ForwardedChannels);
    command.setInputChannelMode(QProcess::ForwardedInputChannel);
    command.start(arguments.at(separator + 1), arguments.mid(separator + 2));
    if (!command.waitForStarted(5000))
        return 1;
    command.waitForFinished(-1);
    return command.exitStatus() == QProcess::NormalExit ? command.exitCode() : 1;
}
