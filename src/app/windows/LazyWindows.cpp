#include "LazyWindows.h"

#include "VeltoWindows.h"
#include "notification/PreBreakNotificationDisplayModel.h"

namespace velto {

LazyNotificationPresenter::LazyNotificationPresenter(WindowsSource windows, PresenterSource instead,
                                                     PresenterChoice prefersInstead)
    : m_windows(std::move(windows))
    , m_makeInstead(std::move(instead))
    , m_prefersInstead(std::move(prefersInstead))
{}

LazyNotificationPresenter::~LazyNotificationPresenter() = default;

NotificationWindowPresenting* LazyNotificationPresenter::choose()
{
    if (m_makeInstead)
        m_instead = std::exchange(m_makeInstead, {})();
    if (m_instead && (!m_prefersInstead || m_prefersInstead()))
        return m_instead.get();
    if (!m_window && m_windows) {
        if (VeltoWindows* windows = m_windows())
            m_window = windows->makeNotificationPresenter();
    }
    return m_window ? m_window.get() : m_instead.get();
}

void LazyNotificationPresenter::show(std::shared_ptr<PreBreakNotificationDisplayModel> displayModel,
                                     std::function<void()> onBreakNow, std::function<void(double seconds)> onPause,
                                     std::function<void()> onSkip, std::function<void()> onDismiss)
{
    NotificationWindowPresenting* presenter = choose();
    // A card shown the other way goes, so there is never one of each.
    if (m_shown && m_shown != presenter)
        m_shown->hide();
    m_shown = presenter;
    if (presenter)
        presenter->show(std::move(displayModel), std::move(onBreakNow), std::move(onPause), std::move(onSkip),
                        std::move(onDismiss));
}

void LazyNotificationPresenter::hide()
{
    if (m_shown)
        m_shown->hide();
}

LazySoundPlayer::LazySoundPlayer(WindowsSource windows)
    : m_windows(std::move(windows))
{}

LazySoundPlayer::~LazySoundPlayer() = default;

void LazySoundPlayer::play(const QString& name, float volume)
{
    if (!m_player && m_windows) {
        if (VeltoWindows* windows = m_windows())
            m_player = windows->makeSoundPlayer();
    }
    if (m_player)
        m_player->play(name, volume);
}

} // namespace velto
