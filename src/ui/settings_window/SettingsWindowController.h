#pragma once

#include "FreedMemory.h"
#include "VeltoWindows.h"
#include "scheduling/BreakManager.h"

#include <QObject>
#include <QPointer>
#include <QQuickWindow>

#include <memory>

class QQmlEngine;

namespace velto {

class SettingsManager;
class SettingsPaneModel;

// The settings window: built on demand, brought forward while it is open, and built afresh (on General)
// after it was closed. The QML engine is made the first time the window is asked for. Main thread.
class SettingsWindowController final : public QObject, public SettingsWindows {
    Q_OBJECT

public:
    // None is owned; each must outlive the controller or be null (no lock, no running applications, no
    // names and icons, no update notice).
    using Collaborators = VeltoWindows::SettingsCollaborators;

    explicit SettingsWindowController(Collaborators collaborators, QObject* parent = nullptr);
    ~SettingsWindowController() override;

    // Brings the open window forward, or builds a new one for these settings.
    void showSettings(SettingsManager* settingsManager, BreakManager* breakManager) override;

    // The last window built, open or hidden; null before the first showSettings().
    [[nodiscard]] QQuickWindow* settingsWindow() const { return m_settingsWindow; }
    [[nodiscard]] QQmlEngine* engineIfCreated() const { return m_engine.get(); }

    // The version the About pane shows next to the application's own version; empty for none.
    static QString buildNumber();

private:
    QQmlEngine& engine();
    QQuickWindow* buildWindow(SettingsManager* settingsManager);
    // What this session's detection misses, and the state of Velto's GNOME Shell extension.
    void showDetectionCoverage(SettingsPaneModel* paneModel) const;
    static void bringForward(QQuickWindow* window);

    Collaborators m_collaborators;
    QPointer<BreakManager> m_breakManager;
    WindowEngine m_engine;
    QPointer<QQuickWindow> m_settingsWindow;
};

} // namespace velto
