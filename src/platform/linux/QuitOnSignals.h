#pragma once

#include <QObject>

#include <initializer_list>

class QSocketNotifier;

namespace velto {

// Ends the event loop when the session asks the process to stop (SIGTERM at logout, SIGINT from a terminal,
// SIGHUP when the terminal goes), so everything is put away as after "Quit Velto": the history is written and
// the windows close. The handler only writes a byte to a socket; the quitting happens on the main thread.
// One per process, made on the main thread once the application object exists.
class QuitOnSignals final : public QObject {
    Q_OBJECT

public:
    explicit QuitOnSignals(std::initializer_list<int> signalNumbers, QObject* parent = nullptr);
    ~QuitOnSignals() override;

private:
    QSocketNotifier* m_notifier = nullptr;
};

} // namespace velto
