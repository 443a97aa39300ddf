#pragma once

#include "NotificationWindowPresenting.h"
#include "OneShotTiming.h"
#include "settings/SettingsEnums.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>
#include <optional>

namespace velto {

class PreBreakNotificationDisplayModel;
class SettingsManager;
class SoundPlaying;

// The pre-break card's state and its actions: whether a card is up, for which break, how long until it, when
// it takes itself down, and what each of the card's choices does. The drawing is the presenter's.
//
// The user's choices go to the owner through onBreakNow, onPause and onSkip. Break now and pause take the
// card down before they call back; skip calls back while the card still counts as up, then takes it down.
// Main thread only. Every assignment of a published field emits objectWillChange() and the field's signal.
class InAppNotificationManager final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isShowing READ isShowing NOTIFY isShowingChanged)
    Q_PROPERTY(std::optional<velto::BreakType> currentBreakType READ currentBreakType NOTIFY currentBreakTypeChanged)
    Q_PROPERTY(double currentTimeRemaining READ currentTimeRemaining NOTIFY currentTimeRemainingChanged)

public:
    // Runs an action on a later turn of the event loop, unless context is gone by then.
    using Post = std::function<void(QObject* context, std::function<void()> action)>;

    // The presenter is owned; sounds (null plays nothing) and settings are not. Without a timer a precise
    // QTimer is used; without post, queued calls on this object's thread.
    InAppNotificationManager(std::unique_ptr<NotificationWindowPresenting> windowPresenter, SoundPlaying* sounds,
                             SettingsManager* settings, std::unique_ptr<OneShotTiming> autoDismissTimer = {},
                             Post post = {}, QObject* parent = nullptr);
    ~InAppNotificationManager() override;

    [[nodiscard]] bool isShowing() const { return m_isShowing; }
    [[nodiscard]] std::optional<BreakType> currentBreakType() const { return m_currentBreakType; }
    [[nodiscard]] double currentTimeRemaining() const { return m_currentTimeRemaining; }
    [[nodiscard]] NotificationWindowPresenting* windowPresenter() const { return m_windowPresenter.get(); }
    [[nodiscard]] PreBreakNotificationDisplayModel* activePreBreakDisplayModel() const
    {
        return m_activePreBreakDisplayModel.get();
    }
    [[nodiscard]] bool isAutoDismissTimerActive() const { return m_autoDismissTimer->isActive(); }

    // Shows a card for the coming break, timeRemaining seconds away, which takes itself down after
    // displayDuration seconds. The "Pop" chime plays every time, at full volume. A card already up is replaced.
    void showPreBreakNotification(BreakType breakType, double timeRemaining, double displayDuration);
    // The scheduler's announcement of a near break: a card only when the user wants one, shown for the
    // notificationDuration the settings hold.
    void handlePreBreakNotification(BreakType breakType, double timeRemaining);
    // The card's countdown; ignored while no card is up.
    void updateTimeRemaining(double timeRemaining);
    // Takes the card down without calling back; nothing happens when none is up.
    void dismiss();

    // The card's controls.
    void breakNowFromNotification();
    void pauseFromNotification(double seconds);
    void skipFromNotification();

    std::function<void()> onBreakNow;
    std::function<void(double seconds)> onPause;
    std::function<void()> onSkip;

Q_SIGNALS:
    void objectWillChange();
    void isShowingChanged(bool isShowing);
    void currentBreakTypeChanged(const std::optional<velto::BreakType>& currentBreakType);
    void currentTimeRemainingChanged(double currentTimeRemaining);
    // The card's pause buttons: the coming break moves this many seconds away. Before onPause is called.
    void breakPostponed(const std::optional<velto::BreakType>& upcoming, double seconds);

private:
    void setIsShowing(bool value);
    void setCurrentBreakType(const std::optional<BreakType>& value);
    void setCurrentTimeRemaining(double value);

    bool m_isShowing = false;
    std::optional<BreakType> m_currentBreakType;
    double m_currentTimeRemaining = 0;
    const std::unique_ptr<NotificationWindowPresenting> m_windowPresenter;
    std::unique_ptr<OneShotTiming> m_autoDismissTimer;
    std::shared_ptr<PreBreakNotificationDisplayModel> m_activePreBreakDisplayModel;
    SoundPlaying* m_sounds = nullptr;
    QPointer<SettingsManager> m_settings;
    Post m_post;
};

} // namespace velto
