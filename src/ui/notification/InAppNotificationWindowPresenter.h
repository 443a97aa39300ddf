#pragma once

#include "FreedMemory.h"
#include "notification/NotificationWindowPresenting.h"

#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QRect>

#include <functional>
#include <memory>

class QQmlEngine;
class QQuickItem;

class QScreen;

namespace velto {

class PreBreakNotificationDisplayModel;
class PreBreakNotificationHostingView;
class DesktopSettingsCache;

// What the card's controls call; lives with the card's window and keeps the card's model alive while the
// window is up. Main thread.
class InAppNotificationActions final : public QObject {
    Q_OBJECT

public:
    InAppNotificationActions(std::shared_ptr<PreBreakNotificationDisplayModel> displayModel,
                             std::function<void()> onBreakNow, std::function<void(double)> onPause,
                             std::function<void()> onSkip, std::function<void()> onDismiss, QObject* parent = nullptr);

    [[nodiscard]] PreBreakNotificationDisplayModel* displayModel() const { return m_displayModel.get(); }

    Q_INVOKABLE void breakNow();
    Q_INVOKABLE void pause(double seconds);
    Q_INVOKABLE void skip();
    Q_INVOKABLE void dismiss();

private:
    std::shared_ptr<PreBreakNotificationDisplayModel> m_displayModel;
    std::function<void()> m_onBreakNow;
    std::function<void(double)> m_onPause;
    std::function<void()> m_onSkip;
    std::function<void()> m_onDismiss;
};

// Shows the pre-break card in a small frameless window at the top left of the primary screen's free area:
// above other windows, on every workspace, out of the taskbar, and never taking the keyboard focus from the
// application the user is typing in. The card slides in from the left as it fades in and leaves the same way;
// the window itself stays put. The QML engine is made for the first card and kept. Main thread.
class InAppNotificationWindowPresenter final : public QObject, public NotificationWindowPresenting {
    Q_OBJECT

public:
    static constexpr int cardWidth = 420;
    static constexpr int cardHeight = 216;
    static constexpr int leftMargin = 16;
    static constexpr int topMargin = 20;

    // Where the card rests on a screen whose free area (panels excluded) is availableGeometry.
    [[nodiscard]] static QRect finalFrame(const QRect& availableGeometry);

    // reduceMotion answers whether the card should only fade, naturalScrolling whether touchpad deltas arrive
    // inverted from the fingers when the events themselves do not say. For each not given, the desktop's
    // setting is read in the background and the latest answer used.
    explicit InAppNotificationWindowPresenter(std::function<bool()> reduceMotion = {},
                                              std::function<bool()> naturalScrolling = {}, QObject* parent = nullptr);
    ~InAppNotificationWindowPresenter() override;

    void show(std::shared_ptr<PreBreakNotificationDisplayModel> displayModel, std::function<void()> onBreakNow,
              std::function<void(double)> onPause, std::function<void()> onSkip,
              std::function<void()> onDismiss) override;
    void hide() override;

    // The card's window, from show() until its fade-out ends or another show() replaces it.
    [[nodiscard]] QQuickWindow* panel() const { return m_panel; }
    [[nodiscard]] static PreBreakNotificationHostingView* hostingView(QQuickWindow* panel);
    [[nodiscard]] QQmlEngine* engineIfCreated() const { return m_engine.get(); }

    // The card on its own, in its window, not yet shown and not animated: for pictures of it.
    [[nodiscard]] QQuickWindow* makePanel(std::shared_ptr<PreBreakNotificationDisplayModel> displayModel,
                                          std::function<void()> onBreakNow, std::function<void(double)> onPause,
                                          std::function<void()> onSkip, std::function<void()> onDismiss);

private:
    QQmlEngine& engine();
    void hideNow();
    void closeAtOnce(QQuickWindow* window);
    // Once no card is left: the engine's garbage, and the memory the cards freed, back to the system.
    void releaseBetweenCards();
    [[nodiscard]] bool reduceMotion() const;
    [[nodiscard]] bool naturalScrolling() const;

    WindowEngine m_engine;
    QPointer<QQuickWindow> m_panel;
    std::function<bool()> m_reduceMotion;
    std::function<bool()> m_naturalScrolling;
    DesktopSettingsCache* m_desktop = nullptr;
};

} // namespace velto
