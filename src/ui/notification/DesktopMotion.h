#pragma once

#include <QObject>
#include <QString>

#include <atomic>
#include <optional>

namespace velto {

// What the desktop says about animations, as far as it could be read.
struct DesktopAnimationSettings {
    // XDG_CURRENT_DESKTOP, e.g. "GNOME" or "KDE".
    QString currentDesktop;
    // GNOME's org.gnome.desktop.interface enable-animations.
    std::optional<bool> gnomeEnableAnimations;
    // KDE's AnimationDurationFactor in kdeglobals; 0 turns animations off.
    std::optional<double> kdeAnimationDurationFactor;

    // Plasma's own setting in a Plasma session, else GNOME's, else false: animations stay on when nothing says
    // otherwise.
    [[nodiscard]] bool prefersReducedMotion() const;
    // Reads both settings. Runs gsettings and reads a file, so never on the main thread.
    [[nodiscard]] static DesktopAnimationSettings read();
};

// The desktop's reduce-motion wish, read on a worker thread and cached; refresh() asks again in the
// background, so value() never blocks. Main thread.
class ReduceMotionSetting final : public QObject {
    Q_OBJECT

public:
    explicit ReduceMotionSetting(QObject* parent = nullptr);
    ~ReduceMotionSetting() override;

    [[nodiscard]] bool value() const { return m_value; }
    void refresh();

Q_SIGNALS:
    void refreshed(bool reduceMotion);

private:
    bool m_value = false;
    std::atomic_bool m_pending = false;
};

} // namespace velto
