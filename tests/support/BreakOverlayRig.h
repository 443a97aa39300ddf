#pragma once

#include "BreakWindow.h"
#include "FakeScreenLock.h"
#include "FakeSoundPlayer.h"
#include "InMemoryUserDefaults.h"
#include "scheduling/BreakManager.h"
#include "settings/SettingsManager.h"

#include <QQuickWindow>
#include <QTest>

#include <functional>

// The break overlay over an in-memory store, with a fake chime player and screen lock, for the window tests.
struct BreakOverlayRig {
    explicit BreakOverlayRig(bool mainScreenOnly = false)
    {
        breaks.setSettingsManager(&settings);
        if (mainScreenOnly)
            appearance(
                [](velto::BreakAppearance& a) { a.screenDisplayMode = velto::ScreenDisplayMode::MainScreenOnly; });
    }

    void configure(const std::function<void(velto::BreakConfiguration&)>& change)
    {
        velto::BreakConfiguration value = settings.breakConfiguration();
        change(value);
        settings.setBreakConfiguration(value);
    }

    void appearance(const std::function<void(velto::BreakAppearance&)>& change)
    {
        velto::BreakAppearance value = settings.breakAppearance();
        change(value);
        settings.setBreakAppearance(value);
    }

    // Starts a short break and shows its windows.
    void startBreak()
    {
        breaks.takeBreakNow();
        overlay.show(velto::BreakType::Short);
    }

    // Starts a short break and returns its first window once it is on screen.
    QQuickWindow* showBreak()
    {
        startBreak();
        QQuickWindow* window = overlay.windows().value(0);
        return window && QTest::qWaitForWindowExposed(window) ? window : nullptr;
    }

    InMemoryUserDefaults store;
    velto::SettingsManager settings{store, nullptr};
    velto::BreakManager breaks{store};
    FakeSoundPlayer player;
    FakeScreenLock lock;
    velto::BreakWindow overlay{&settings, &breaks, &player, &lock};
};
