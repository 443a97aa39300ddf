#pragma once

#include <QObject>
#include <QString>

#include <atomic>
#include <optional>

namespace velto {

// What the desktop says about animations and touchpad scrolling, as far as it could be read.
struct DesktopSettings {
    // XDG_CURRENT_DESKTOP, e.g. "GNOME" or "KDE".
    QString currentDesktop;
    // GNOME's org.gnome.desktop.interface enable-animations.
    std::optional<bool> gnomeEnableAnimations;
    // KDE's AnimationDurationFactor in kdeglobals; 0 turns animations off.
    std::optional<double> kdeAnimationDurationFactor;
    // GNOME's org.gnome.desktop.peripherals.touchpad natural-scroll.
    std::optional<bool> gnomeTouchpadNaturalScroll;
    // Plasma's NaturalScroll for a touchpad in kcminputrc.
    std::optional<bool> kdeTouchpadNaturalScroll;

    // Plasma's own setting in a Plasma session, else GNOME's, else Plasma's; false when nothing is known, so
    // animations stay on and scrolling is taken as traditional.
    [[nodiscard]] bool prefersReducedMotion() const;
    [[nodiscard]] bool touchpadScrollsNaturally() const;
    // Reads the settings. Runs gsettings and reads files, so never on the main thread.
    [[nodiscard]] static DesktopSettings read();
};

// The desktop settings the card needs, read on a worker thread and cached; refresh() asks again in the
// background, so the getters never block. Main thread.
class DesktopSettingsCache final : public QObject {
    Q_OBJECT

public:
    explicit DesktopSettingsCache(QObject* parent = nullptr);
    ~DesktopSettingsCache() override;

    [[nodiscard]] bool reduceMotion() const { return m_reduceMotion; }
    [[nodiscard]] bool naturalScrolling() const { return m_naturalScrolling; }
    void refresh();

Q_SIGNALS:
    void refreshed();

private:
    bool m_reduceMotion = false;
    bool m_naturalScrolling = false;
    std::atomic_bool m_pending = false;
};

} // namespace velto
