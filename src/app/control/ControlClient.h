#pragma once

#include "ControlBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantList>

class QTextStream;

namespace velto {

struct CommandLine;
struct ControlStatus;

// The command line's side: sends one request to the running instance and turns the answer into output and an
// exit status. Calls never start an instance (no bus activation) and give up after the time-out. A call spins a
// local event loop while it waits, so the service may live in the same thread (as in tests).
class ControlClient final {
public:
    explicit ControlClient(QDBusConnection bus, int timeoutMs = ControlBus::callTimeoutMs);

    // A command that talks to the running instance (see CommandLine::talksToRunningInstance).
    [[nodiscard]] int run(const CommandLine& commandLine, QTextStream& out, QTextStream& err);
    // A plain second start: ask the running instance to show its settings. Success when it answered at all.
    [[nodiscard]] int handOver(QTextStream& out, QTextStream& err);

    [[nodiscard]] static QString statusText(const ControlStatus& status);
    [[nodiscard]] static QString statusJson(const ControlStatus& status);

private:
    // timeoutMs 0: the client's own time-out.
    [[nodiscard]] QDBusMessage call(const QString& method, const QVariantList& arguments = {}, int timeoutMs = 0);
    // Prints the one-line reason a call failed and returns the exit status for it.
    [[nodiscard]] int reportFailure(const QDBusMessage& reply, QTextStream& err);
    [[nodiscard]] bool isInstanceRunning();

    QDBusConnection m_bus;
    int m_timeoutMs;
};

} // namespace velto
