#include "InAppNotificationManager.h"

#include "PreBreakNotificationDisplayModel.h"
#include "Published.h"
#include "scheduling/BreakEffects.h"
#include "settings/SettingsManager.h"

namespace velto {

InAppNotificationManager::InAppNotificationManager(std::unique_ptr<NotificationWindowPresenting> windowPresenter,
                                                   SoundPlaying* sounds, SettingsManager* settings,
                                                   std::unique_ptr<OneShotTiming> autoDismissTimer, Post post,
                                                   QObject* parent)
    : QObject(parent)
    , m_windowPresenter(std::move(windowPresenter))
    , m_autoDismissTimer(autoDismissTimer ? std::move(autoDismissTimer) : std::make_unique<QtOneShotTimer>())
    , m_sounds(sounds)
    , m_settings(settings)
    , m_post(std::move(post))
{
    if (!m_post) {
        m_post = [](QObject* context, std::function<void()> action) {
            QMetaObject::invokeMethod(context, std::move(action), Qt::QueuedConnection);
        };
    }
}

InAppNotificationManager::~InAppNotificationManager()
{
    // The timer's action points at this object.
    m_autoDismissTimer->stop();
}

void InAppNotificationManager::setIsShowing(bool value)
{
    publish(this, m_isShowing, value, &InAppNotificationManager::isShowingChanged);
}

void InAppNotificationManager::setCurrentBreakType(const std::optional<BreakType>& value)
{
    publish(this, m_currentBreakType, value, &InAppNotificationManager::currentBreakTypeChanged);
}

void InAppNotificationManager::setCurrentTimeRemaining(double value)
{
    publish(this, m_currentTimeRemaining, value, &InAppNotificationManager::currentTimeRemainingChanged);
}

void InAppNotificationManager::showPreBreakNotification(BreakType breakType, double timeRemaining,
                                                        double displayDuration)
{
    setCurrentBreakType(breakType);
    setCurrentTimeRemaining(timeRemaining);
    setIsShowing(true);

    auto model = std::make_shared<PreBreakNotificationDisplayModel>(breakType, timeRemaining);
    m_activePreBreakDisplayModel = model;

    // The dismissal is queued rather than run inside the timer, as every other way down is a separate event.
    QPointer<InAppNotificationManager> self(this);
    m_autoDismissTimer->stop();
    m_autoDismissTimer->start(displayDuration, [self] {
        if (self)
            self->m_post(self, [self] { self->dismiss(); });
    });

    playPreBreakChime(m_sounds);

    // Observers see the new state before the card appears. The presenter lives as long as this object, so the
    // queued call, dropped with this object, never reaches a presenter that is gone.
    m_post(this, [self, model] {
        if (!self || !self->m_windowPresenter)
            return;
        self->m_windowPresenter->show(
            model,
            [self] {
                if (self)
                    self->breakNowFromNotification();
            },
            [self](double seconds) {
                if (self)
                    self->pauseFromNotification(seconds);
            },
            [self] {
                if (self)
                    self->skipFromNotification();
            },
            [self] {
                if (self)
                    self->dismiss();
            });
    });
}

void InAppNotificationManager::handlePreBreakNotification(BreakType breakType, double timeRemaining)
{
    if (!m_settings)
        return;
    const NotificationSettings& notifications = m_settings->notificationSettings();
    if (notifications.showPreBreakNotification)
        showPreBreakNotification(breakType, timeRemaining, notifications.notificationDuration);
}

void InAppNotificationManager::updateTimeRemaining(double timeRemaining)
{
    if (!m_isShowing || !m_currentBreakType)
        return;
    setCurrentTimeRemaining(timeRemaining);
    if (m_activePreBreakDisplayModel)
        m_activePreBreakDisplayModel->setTimeRemaining(timeRemaining);
}

void InAppNotificationManager::dismiss()
{
    if (!m_isShowing)
        return;
    setIsShowing(false);
    setCurrentBreakType(std::nullopt);
    setCurrentTimeRemaining(0);
    m_activePreBreakDisplayModel.reset();
    m_autoDismissTimer->stop();
    if (m_windowPresenter)
        m_windowPresenter->hide();
}

void InAppNotificationManager::breakNowFromNotification()
{
    dismiss();
    if (onBreakNow)
        onBreakNow();
}

void InAppNotificationManager::pauseFromNotification(double seconds)
{
    const std::optional<BreakType> upcoming = m_currentBreakType;
    dismiss();
    Q_EMIT breakPostponed(upcoming, seconds);
    if (onPause)
        onPause(seconds);
}

void InAppNotificationManager::skipFromNotification()
{
    if (onSkip)
        onSkip();
    dismiss();
}

} // namespace velto
