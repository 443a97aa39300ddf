#include "QuitOnSignals.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace velto {
namespace {

Q_LOGGING_CATEGORY(lcSignals, "velto.signals")

// Written by the handler, read on the main thread; a process has one.
int signalSockets[2] = {-1, -1};

void onSignal(int)
{
    const char byte = 1;
    // Nothing but async-signal-safe calls here; a full socket means a quit is already on its way.
    [[maybe_unused]] const ssize_t written = ::write(signalSockets[0], &byte, 1);
}

} // namespace

QuitOnSignals::QuitOnSignals(std::initializer_list<int> signalNumbers, QObject* parent)
    : QObject(parent)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, signalSockets) != 0) {
        qCWarning(lcSignals, "Cannot watch for stop signals; a stop ends Velto without putting things away");
        return;
    }
    m_notifier = new QSocketNotifier(signalSockets[1], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [] {
        char bytes[16];
        while (::read(signalSockets[1], bytes, sizeof bytes) > 0) {
        }
        QCoreApplication::quit();
    });
    struct sigaction action = {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int number : signalNumbers)
        ::sigaction(number, &action, nullptr);
}

QuitOnSignals::~QuitOnSignals()
{
    // Back to the default, so a signal after this ends the process as it would have.
    struct sigaction action = {};
    action.sa_handler = SIG_DFL;
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        ::sigaction(number, &action, nullptr);
    for (int& socket : signalSockets) {
        if (socket >= 0)
            ::close(socket);
        socket = -1;
    }
}

} // namespace velto
