#pragma once

#include <functional>
#include <memory>

namespace velto {

class PreBreakNotificationDisplayModel;

// Draws the pre-break card and takes it away. Main thread only.
class NotificationWindowPresenting {
public:
    virtual ~NotificationWindowPresenting() = default;

    // Builds and shows a card for displayModel, replacing any card still up or leaving at once. The card keeps
    // the model alive while it is on screen and calls the actions from its controls: onPause gets the pause
    // length in seconds (60 or 180), onDismiss comes from the close button and a completed swipe. When there is
    // no screen to show it on, nothing is shown and nothing is reported.
    virtual void show(std::shared_ptr<PreBreakNotificationDisplayModel> displayModel, std::function<void()> onBreakNow,
                      std::function<void(double seconds)> onPause, std::function<void()> onSkip,
                      std::function<void()> onDismiss) = 0;
    // Animates the current card out and closes it; the work is deferred to the event loop, so a show() that
    // follows at once is not undone. Without a card, nothing happens.
    virtual void hide() = 0;
};

} // namespace velto
