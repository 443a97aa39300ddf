#pragma once

#include "notification/NotificationWindowPresenting.h"
#include "scheduling/SoundPlaying.h"

#include <functional>
#include <memory>

namespace velto {

class VeltoWindows;

// Hands out the windows when first needed; may answer null (no windows in this session).
using WindowsSource = std::function<VeltoWindows*()>;

// Another way to show the card, made at the first card; null to use the windows' card.
using PresenterSource = std::function<std::unique_ptr<NotificationWindowPresenting>()>;
// Asked at each card when that other way exists: whether it is still the one to use.
using PresenterChoice = std::function<bool()>;

// The pre-break card, asked of the windows on the first show. Until then, and when there are no windows,
// nothing is loaded and a hide has nothing to do.
class LazyNotificationPresenter final : public NotificationWindowPresenting {
public:
    explicit LazyNotificationPresenter(WindowsSource windows, PresenterSource instead = {},
                                       PresenterChoice prefersInstead = {});
    ~LazyNotificationPresenter() override;

    void show(std::shared_ptr<PreBreakNotificationDisplayModel> displayModel, std::function<void()> onBreakNow,
              std::function<void(double seconds)> onPause, std::function<void()> onSkip,
              std::function<void()> onDismiss) override;
    void hide() override;

private:
    [[nodiscard]] NotificationWindowPresenting* choose();

    WindowsSource m_windows;
    PresenterSource m_makeInstead;
    PresenterChoice m_prefersInstead;
    std::unique_ptr<NotificationWindowPresenting> m_instead;
    std::unique_ptr<NotificationWindowPresenting> m_window;
    NotificationWindowPresenting* m_shown = nullptr;
};

// The chimes, asked of the windows on the first play; silent when there are none.
class LazySoundPlayer final : public SoundPlaying {
public:
    explicit LazySoundPlayer(WindowsSource windows);
    ~LazySoundPlayer() override;

    void play(const QString& name, float volume) override;

private:
    WindowsSource m_windows;
    std::unique_ptr<SoundPlaying> m_player;
};

} // namespace velto
