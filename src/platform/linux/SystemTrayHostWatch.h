#pragma once

#include <QDBusServiceWatcher>
#include <QObject>

#include <memory>

namespace velto {

class QtX11EventFilter;

// Tells whether the session has somewhere to put a tray icon: a StatusNotifierWatcher with a registered host on
// the session bus, or on X11 an XEmbed tray (the owner of _NET_SYSTEM_TRAY_S<n>). At login Velto often starts
// before the panel, and Qt decides once per process how to show an icon, so the icon is made only when this says
// a host exists. Answers arrive on the main thread; nothing polls.
class SystemTrayHostWatch final : public QObject {
    Q_OBJECT

public:
    explicit SystemTrayHostWatch(QObject* parent = nullptr);
    ~SystemTrayHostWatch() override;

    [[nodiscard]] bool hostExists() const { return m_statusNotifierHost || m_xembedTray; }

Q_SIGNALS:
    // The first answers about the bus are in and neither kind of tray exists.
    void noHostAtStart();
    // A tray host exists now where none did before.
    void hostAppeared();

private Q_SLOTS:
    void hostRegistered();

private:
    void askWatcher();
    void watchXEmbedTray();
    void setStatusNotifierHost(bool exists);
    void setXEmbedTray(bool exists);
    void settle(bool hadHost);

    QDBusServiceWatcher m_watcher;
    bool m_statusNotifierHost = false;
    bool m_xembedTray = false;
    bool m_settled = false;
    std::unique_ptr<QtX11EventFilter> m_x11Filter;
};

} // namespace velto
