#pragma once

#include "notification/NotificationWindowPresenting.h"

#include <QDBusConnection>
#include <QObject>

#include <memory>

namespace velto {

// The pre-break card as a desktop notification with the card's four actions, for desktops where a window of
// ours cannot be shown without taking the keyboard focus (GNOME and Weston offer no layers): the desktop's own
// notifications never take it. Its actions and its dismissal reach the same callbacks as the card's; a
// notification that times out is left to the caller's own timing. Main thread.
class DesktopNotificationPresenter final : public QObject, public NotificationWindowPresenting {
    Q_OBJECT

public:
    // Null when no notification server on the bus shows actions.
    [[nodiscard]] static std::unique_ptr<DesktopNotificationPresenter> create(QDBusConnection bus);

    void show(std::shared_ptr<PreBreakNotificationDisplayModel> displayModel, std::function<void()> onBreakNow,
              std::function<void(double seconds)> onPause, std::function<void()> onSkip,
              std::function<void()> onDismiss) override;
    void hide() override;

    [[nodiscard]] quint32 shownId() const { return m_id; }

private Q_SLOTS:
    void actionInvoked(quint32 id, const QString& action);
    void closed(quint32 id, quint32 reason);

private:
    explicit DesktopNotificationPresenter(QDBusConnection bus);

    QDBusConnection m_bus;
    quint32 m_id = 0;
    std::shared_ptr<PreBreakNotificationDisplayModel> m_model;
    std::function<void()> m_onBreakNow;
    std::function<void(double)> m_onPause;
    std::function<void()> m_onSkip;
    std::function<void()> m_onDismiss;
};

} // namespace velto
