#include "LazyWindows.h"

#include "VeltoWindows.h"
#include "notification/PreBreakNotificationDisplayModel.h"

namespace velto {

LazyNotificationPresenter::LazyNotificationPresenter(WindowsSource windows, PresenterSource instead)
    : m_windows(std::move(windows))
    , m_instead(std::move(instead))
{}

LazyNotificationPresenter::~LazyNotificationPresenter() = default;

void LazyNotificationPresenter::show(std::shared_ptr<PreBreakNotificationDisplayModel> displayModel,
                                     std::function<void()> onBreakNow, std::function<void(double seconds)> onPause,
                                     std::function<void()> onSkip, std::function<void()> onDismiss)
{
    if (!m_presenter && m_instead)
        m_presenter = std::exchange(m_instead, {})();
    if (!m_presenter && m_windows) {
        if (VeltoWindows* windows = m_windows())
            m_presenter = windows->makeNotificationPresenter();
    }
    if (m_presenter)
        m_presenter->show(std::move(displayModel), std::move(onBreakNow), std::move(onPause), std::move(onSkip),
                          std::move(onDismiss));
}

void LazyNotificationPresenter::hide()
{
    if (m_presenter)
        m_presenter->hide();
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
