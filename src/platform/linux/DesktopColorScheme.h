#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QPalette>

#include <optional>

namespace velto {

// Follows the desktop's light or dark preference (the settings portal's org.freedesktop.appearance
// color-scheme, which GNOME and KDE both answer, on X11 and Wayland alike): where Qt's own palette disagrees
// with it, as under GNOME without a Qt theme, the application's palette is swapped for one that agrees, so the
// card and the settings window, which draw from the palette, follow. Asks without waiting. Main thread.
class DesktopColorScheme final : public QObject {
    Q_OBJECT

public:
    enum class Preference { None = 0, Dark = 1, Light = 2 };
    Q_ENUM(Preference)

    explicit DesktopColorScheme(QDBusConnection bus, QObject* parent = nullptr);

    // Reads the preference and listens for changes.
    void start();
    [[nodiscard]] Preference preference() const { return m_preference; }

    // A dark palette in the desktop's usual greys.
    [[nodiscard]] static QPalette darkPalette();

Q_SIGNALS:
    void preferenceChanged(velto::DesktopColorScheme::Preference preference);

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void apply(Preference preference);

    QDBusConnection m_bus;
    Preference m_preference = Preference::None;
    // Qt's palette before any swap, given back when the preference matches it again.
    std::optional<QPalette> m_original;
};

} // namespace velto
